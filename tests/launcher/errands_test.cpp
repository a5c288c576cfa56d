// The launcher in front of a scripted tool.
#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "base/interruptor.h"
#include "launched.h"
#include "launcher/habits.h"
#include "support/fake_adb.h"
#include "support/temporary_folder.h"

namespace velk {
namespace {

using enum Fake_Adb::Behaviour;

struct Errand {
    Words words;
    std::vector<std::pair<std::string, Fake_Adb::Answer>> answers;
    Launched expected;
    Words calls;
};

const std::string list =
    "List of devices attached\nS1\tno permissions (udev rules wrong?); see [tools]\nS2\tattached\n";
const std::string older_list =
    "List of devices attached \nS1\tno permissions (udev rules wrong?)\nS2\tattached\n";
const std::string other_version =
    "adb server version (32) doesn't match this client (41); killing...\n";
const std::string gone = "error: device 'S1' not found\n";

const Errand errands[] = {
    {{"-P", "5038", "devices"},
     {{"devices", {list, "* started\n", 0, leaves_a_server}}},
     {older_list, "* started\n", 0},
     {"-P 5038 devices"}},
    {{"devices"},
     {{"devices", {list, "* a\n" + other_version + "* b\n"}}},
     {other_version + older_list, "* a\n" + other_version + "* b\n", 0},
     {"devices"}},
    {{"devices"}, {{"devices", {older_list}}}, {older_list, "", 0}, {"devices"}},
    {{"-s", "push", "pull", "/a b", "/tmp/x"},
     {{"pull", {"1 file pulled.\n"}}},
     {"", "1 file pulled.\n", 0},
     {"-s push pull -a /a b /tmp/x"}},
    {{"pull", "/a", "/tmp/x"}, {{"pull", {"", gone, 1}}}, {gone, gone, 1}, {"pull -a /a /tmp/x"}},
    {{"pull", "/a", "/tmp/x"},
     {{"pull", {"", "", 0, crashes}}},
     {"adb: pull ended with status 134\n", "", 128 + SIGABRT},
     {"pull -a /a /tmp/x"}},
    {{"pull", "/a", "/no dates"},
     {{"pull", {"[100%] /a\n", "", 1}}},
     {"[100%] /a\n", "[100%] /a\n[100%] /a\n", 1},
     {"pull -a /a /no dates", "pull /a /no dates"}},
    {{"-d", "push", "/m/a.mp3", "/sdcard/it's me/"},
     {{"push", {"1 file pushed.\n"}}, {"shell", {"noise\n", "noise\n", 1}}},
     {"1 file pushed.\n", "", 0},
     {"-d shell mkdir -p '/sdcard/it'\\''s me/'", "-d push /m/a.mp3 /sdcard/it's me/"}},
    {{"push", "/m/a.mp3", "/v1.0/b.mp3"},
     {{"push", {"half\n", gone, 1}}},
     {"half\n" + gone, gone, 1},
     {"push /m/a.mp3 /v1.0/b.mp3"}},
    {{"-t", "4", "uninstall", "a.b"},
     {{"get-state", {"device\n"}}, {"uninstall", {"Success\n"}}},
     {"Success\n", "", 0},
     {"-t 4 get-state", "-t 4 uninstall a.b"}},
    {{"uninstall", "a.b"},
     {{"get-state", {"", gone, 255}}, {"uninstall", {"", "", 0, hangs}}},
     {gone, gone, 1},
     {"get-state"}},
    {{"install", "/x.apk"},
     {{"install", {"half", gone, 0, crashes}}},
     {"half" + gone, gone, 128 + SIGABRT},
     {"install /x.apk"}},
    {{"-P5038", "forward", "tcp:1", "tcp:2"},
     {{"forward", {"\xC3(attached\n", "e\n", 4}}},
     {"\xC3(attached\n", "e\n", 4},
     {"-P5038 forward tcp:1 tcp:2"}},
};

TEST(Launcher, restores_the_older_habits_and_passes_on_the_rest) {
    for (const Errand& errand : errands) {
        const Fake_Adb adb;
        for (const auto& [words, answer] : errand.answers) adb.answer(words, answer);
        const Launched launched = launch({"VELK_ADB=" + adb.tool()}, errand.words);
        SCOPED_TRACE(errand.calls.front());
        EXPECT_EQ(launched.output, errand.expected.output);
        EXPECT_EQ(launched.errors, errand.expected.errors);
        EXPECT_EQ(launched.status, errand.expected.status);
        EXPECT_EQ(adb.call_lines(), errand.calls);
    }
}

TEST(Launcher, waits_only_for_a_phone_that_the_bus_shows_and_the_tool_has_not_met) {
    const std::string header = "List of devices attached\n";
    EXPECT_TRUE(may_not_have_met_the_phone(header));
    EXPECT_TRUE(may_not_have_met_the_phone(header + "S1\toffline\n"));
    for (const char* const state : {"device", "unauthorized", "no permissions"})
        EXPECT_FALSE(may_not_have_met_the_phone(header + "S1\t" + state + "\n")) << state;
    const Temporary_Folder bus;
    EXPECT_FALSE(debugging_is_on_the_bus(bus.path("")));
    for (const char* const protocol : {"02", "01"}) {
        const std::string place = bus.path("1-1:1." + std::string(protocol));
        std::filesystem::create_directory(place);
        std::ofstream(place + "/bInterfaceClass") << "ff\n";
        std::ofstream(place + "/bInterfaceSubClass") << "42\n";
        std::ofstream(place + "/bInterfaceProtocol") << protocol << "\n";
        EXPECT_EQ(debugging_is_on_the_bus(bus.path("")), std::string(protocol) == "01");
    }
}

TEST(Launcher, takes_the_tool_with_it_when_it_is_ended) {
    for (const char* const command : {"devices", "push", "shell"}) {
        const Fake_Adb adb;
        adb.answer(command, {.behaviour = hangs});
        Interruptor interruptor;
        std::thread worker([&] {
            const Interruptor::Use use(interruptor);
            EXPECT_EQ(launch({"VELK_ADB=" + adb.tool()}, {command}).status, 128 + SIGTERM);
        });
        while (!adb.is_hanging()) std::this_thread::yield();
        interruptor.cancel();
        worker.join();
        while (adb.is_hanging()) std::this_thread::yield();
    }
}

}  // namespace
}  // namespace velk
