// The launcher in front of a scripted tool.
#include <gmock/gmock.h>

#include <csignal>
#include <thread>

#include "base/interruptor.h"
#include "launched.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::ElementsAreArray;

class Launcher : public testing::Test {
  protected:
    Fake_Adb adb_;
    Environment_Setting chosen_{"VELK_ADB", adb_.tool()};
};

struct Errand {
    std::vector<std::string> words;
    std::vector<std::pair<std::string, Fake_Adb::Answer>> answers;
    Launched expected;
    std::vector<std::string> calls;
};

const std::string gone = "error: device 'S1' not found\n";

const Errand errands[] = {
    {.words = {"devices", "-l"},
     .answers = {{"devices", {.output = "List of devices attached\nS1\tdevice\n\n"}}},
     .expected = {"List of devices attached \nS1\tdevice\n\n", "", 0},
     .calls = {"devices -l"}},
    {.words = {"-P", "5038", "devices"},
     .answers = {{"devices", {.errors = "* cannot start server\n", .status = 1}}},
     .expected = {"", "* cannot start server\n", 1},
     .calls = {"-P 5038 devices"}},
    {.words = {"-s", "S1", "pull", "/sdcard/a b.jpg", "/tmp/x"},
     .answers = {{"pull", {.output = "/sdcard/a b.jpg: 1 file pulled.\n"}}},
     .expected = {"", "/sdcard/a b.jpg: 1 file pulled.\n", 0},
     .calls = {"-s S1 pull -a /sdcard/a b.jpg /tmp/x"}},
    {.words = {"-s", "S1", "pull", "/sdcard/a.jpg", "/tmp/x"},
     .answers = {{"pull", {.errors = "adb: error: no such file\n", .status = 1}}},
     .expected = {"adb: error: no such file\n", "adb: error: no such file\n", 1},
     .calls = {"-s S1 pull -a /sdcard/a.jpg /tmp/x"}},
    {.words = {"-s", "S1", "push", "/m/a.mp3", "/sdcard/my music"},
     .answers = {{"push", {.output = "1 file pushed.\n"}},
                 {"shell", {.output = "noise\n", .errors = "noise\n", .status = 1}}},
     .expected = {"1 file pushed.\n", "", 0},
     .calls = {"-s S1 shell mkdir -p '/sdcard/my music'", "-s S1 push /m/a.mp3 /sdcard/my music"}},
    {.words = {"-d", "push", "/m/a.mp3", "/sdcard/b.mp3"},
     .answers = {{"push", {.output = "half\n", .errors = "storage is full\n", .status = 1}}},
     .expected = {"half\nstorage is full\n", "storage is full\n", 1},
     .calls = {"-d push /m/a.mp3 /sdcard/b.mp3"}},
    {.words = {"-s", "S1", "uninstall", "a.b"},
     .answers = {{"get-state", {.output = "device\n"}}, {"uninstall", {.output = "Success\n"}}},
     .expected = {"Success\n", "", 0},
     .calls = {"-s S1 get-state", "-s S1 uninstall a.b"}},
    {.words = {"-s", "S1", "uninstall", "a.b"},
     .answers = {{"get-state", {.errors = gone, .status = 1}},
                 {"uninstall", {.behaviour = Fake_Adb::Behaviour::hangs}}},
     .expected = {gone, gone, 1},
     .calls = {"-s S1 get-state"}},
    {.words = {"-s", "S1", "install", "-r", "/x.apk"},
     .answers =
         {{"install",
           {.output = "Performing Push Install\n", .errors = "adb: failed\n", .status = 255}}},
     .expected = {"Performing Push Install\nadb: failed\n", "adb: failed\n", 255},
     .calls = {"-s S1 install -r /x.apk"}},
    {.words = {"-s", "S1", "install", "-r", "/x.apk"},
     .answers = {{"install", {.output = "Success\n", .errors = "a warning\n"}}},
     .expected = {"Success\n", "a warning\n", 0},
     .calls = {"-s S1 install -r /x.apk"}},
    {.words = {"-s", "S1", "install", "-r", "/x.apk"},
     .answers = {{"install", {.output = "half", .behaviour = Fake_Adb::Behaviour::crashes}}},
     .expected = {"half", "", 128 + SIGABRT},
     .calls = {"-s S1 install -r /x.apk"}},
    {.words = {"-s", "S1", "forward", "tcp:1", "tcp:2"},
     .answers = {{"forward", {.output = "\xC3(attached\n", .errors = "e\n", .status = 4}}},
     .expected = {"\xC3(attached\n", "e\n", 4},
     .calls = {"-s S1 forward tcp:1 tcp:2"}},
};

TEST_F(Launcher, restores_the_older_habits_and_passes_on_the_rest) {
    for (const Errand& errand : errands) {
        const Fake_Adb adb;
        const Environment_Setting chosen("VELK_ADB", adb.tool());
        for (const auto& [words, answer] : errand.answers) adb.answer(words, answer);
        const Launched launched = launch(errand.words);
        SCOPED_TRACE(testing::PrintToString(errand.words));
        EXPECT_EQ(launched.output, errand.expected.output);
        EXPECT_EQ(launched.errors, errand.expected.errors);
        EXPECT_EQ(launched.status, errand.expected.status);
        EXPECT_THAT(adb.call_lines(), ElementsAreArray(errand.calls));
    }
}

TEST_F(Launcher, does_not_wait_for_a_server_that_the_tool_leaves_behind) {
    adb_.answer("devices", {.output = "List of devices attached\n",
                            .behaviour = Fake_Adb::Behaviour::leaves_a_server});
    EXPECT_EQ(launch({"devices"}).output, "List of devices attached \n");
}

TEST_F(Launcher, passes_its_input_on) {
    const std::string tool = adb_.directory() + "/reader";
    std::ofstream(tool) << "#!/bin/sh\ncat\n";
    std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
    const Environment_Setting chosen("VELK_ADB", tool);
    const std::string bytes("a\0b\n\xFF", 5);
    EXPECT_EQ(launch({"shell", "cat"}, bytes).output, bytes);
    EXPECT_EQ(launch({"install", "-"}, bytes).output, bytes);
}

TEST_F(Launcher, takes_the_tool_with_it_when_it_is_ended) {
    for (const char* const command : {"devices", "push", "shell"}) {
        adb_.answer(command, {.behaviour = Fake_Adb::Behaviour::hangs});
        Interruptor interruptor;
        int status = 0;
        std::thread worker([&] {
            const Interruptor::Use use(interruptor);
            status = run_child({.words = {VELK_LAUNCHER, command}}, [](std::string_view) {});
        });
        while (!adb_.is_hanging()) std::this_thread::yield();
        interruptor.cancel();
        worker.join();
        while (adb_.is_hanging()) std::this_thread::yield();
        EXPECT_EQ(status, 128 + SIGTERM) << command;
    }
}

}  // namespace
}  // namespace velk
