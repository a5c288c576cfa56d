#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "demo_phone/phone_shell.h"
#include "test_phone.h"

namespace velk {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::StartsWith;

TEST(Phone_Storage, no_path_leads_out_of_the_folder) {
    const auto outside = Phone_Storage::open("");
    const auto storage = Phone_Storage::open("");
    const std::string root = storage->real_path("/")->parent_path().string();
    for (const char* path : {"/../../etc/passwd", "../x", "/sdcard/../../../x", "//x", "", "/./..",
                             "/sdcard/./../..//../x"})
        EXPECT_THAT(storage->real_path(path)->string(), StartsWith(root)) << path;
    EXPECT_FALSE(storage->real_path(std::string_view("/a\0b", 4)));
    fs::create_directory_symlink(*outside->real_path("/"), *storage->real_path("/sdcard/link"));
    EXPECT_FALSE(storage->real_path("/sdcard/link/x"));
    EXPECT_FALSE(storage->write("/sdcard/link/x", "1"));
    EXPECT_FALSE(storage->remove("/", true));
}

TEST(Phone_Storage, the_card_has_its_usual_other_names) {
    for (const char* path : {"/sdcard/a", "/mnt/sdcard/a", "/storage/emulated/0/a", "sdcard//a/"})
        EXPECT_EQ(plain_phone_path(path), "/sdcard/a") << path;
    EXPECT_EQ(plain_phone_path("/storage/emulated/01"), "/storage/emulated/01");
}

TEST(Phone_Storage, a_folder_of_its_own_goes_and_a_given_one_stays) {
    fs::path given;
    {
        const auto temporary = Phone_Storage::open("");
        given = *temporary->real_path("/sdcard/kept");
        {
            const auto storage = Phone_Storage::open(given.string());
            ASSERT_TRUE(storage->write("/sdcard/a", "1"));
        }
        EXPECT_TRUE(fs::exists(given / "sdcard/a"));
    }
    EXPECT_FALSE(fs::exists(given));
}

TEST(Phone_Shell, words_are_parted_as_a_shell_does) {
    const struct {
        std::string line;
        std::vector<std::string> words;
    } cases[] = {{"pm 'install' '-r' '/data/a b.apk'", {"pm", "install", "-r", "/data/a b.apk"}},
                 {"rm '/a' </dev/null", {"rm", "/a"}},
                 {"echo 'it'\\''s' \"a b\" c\\ d ''", {"echo", "it's", "a b", "c d", ""}},
                 {"  ", {}}};
    for (const auto& [line, words] : cases) EXPECT_EQ(shell_words(line), words) << line;
}

TEST(Phone_Shell, commands_do_what_a_phone_does) {
    Test_Phone test;
    const struct {
        std::string line;
        std::string output;
        int status;
    } cases[] = {{"mkdir -p /sdcard/a/b", "", 0},
                 {"mkdir /sdcard/a", "mkdir: '/sdcard/a': File exists\n", 1},
                 {"ls /sdcard", "a\n", 0},
                 {"ls /nothing", "ls: /nothing: No such file or directory\n", 1},
                 {"rm /sdcard/a", "rm: /sdcard/a: is a directory\n", 1},
                 {"rm -rf /sdcard/a", "", 0},
                 {"rm /sdcard/a", "rm: /sdcard/a: No such file or directory\n", 1},
                 {"rm -f /sdcard/a", "", 0},
                 {"getprop ro.product.model", "Demo Phone\n", 0},
                 {"frob", "/system/bin/sh: frob: not found\n", 127},
                 {"pm install -r /nothing.apk", "Failure [INSTALL_FAILED_INVALID_URI]\n", 1},
                 {"cmd package uninstall a.b", "Failure [DELETE_FAILED_INTERNAL_ERROR]\n", 1}};
    for (const auto& [line, output, status] : cases) {
        const Shell_Result result = run_shell(test.phone, line);
        EXPECT_EQ(result.output, output) << line;
        EXPECT_EQ(result.status, status) << line;
    }
}

TEST(Phone_Shell, an_installed_package_becomes_an_application_and_goes_again) {
    Test_Phone test;
    test.storage->write("/data/local/tmp/My Piano.apk", "12345");
    const std::string install = "pm install -r '/data/local/tmp/My Piano.apk'";
    for (int i = 0; i < 2; ++i) EXPECT_EQ(run_shell(test.phone, install).output, "Success\n");
    ASSERT_EQ(test.phone.store.apps().size(), 1U) << "installed again, it is replaced";
    const Phone_App app = test.phone.store.apps().front();
    EXPECT_EQ(app.name, "My Piano");
    EXPECT_EQ(app.size, 5U);
    EXPECT_EQ(run_shell(test.phone, "pm uninstall " + app.package).output, "Success\n");
    EXPECT_TRUE(test.phone.store.apps().empty());

    test.phone.behaviour.refuse_install = true;
    EXPECT_THAT(run_shell(test.phone, install).output, StartsWith("Failure ["));
    play(test.phone.behaviour, "normal,storage-full");
    EXPECT_THAT(run_shell(test.phone, install).output, StartsWith("Failure ["));
    EXPECT_TRUE(test.phone.store.apps().empty());
}

TEST(Phone_Shell, the_agent_listens_only_after_all_three_steps) {
    const std::string install =
        "pm install /data/local/tmp/velk.phone.android.PhoneConnActivity.apk";
    const std::string start = "am start -a x -n velk.phone.android/.PhoneConnActivity";
    const std::string wake = "am broadcast -a openUSBConnect";
    const std::string other = "am broadcast -a somethingElse";
    const std::string uninstall = "pm uninstall velk.phone.android";
    const struct {
        std::vector<std::string> lines;
        bool listens;
    } cases[] = {{{install, start, wake}, true},
                 {{install, start}, false},
                 {{start, wake}, false},
                 {{install, wake, start}, false},
                 {{install, start, other}, false},
                 {{install, start, wake, install}, false},
                 {{install, start, wake, start}, true},
                 {{install, start, wake, uninstall}, false}};
    for (const auto& [lines, listens] : cases) {
        Test_Phone test;
        test.storage->write("/data/local/tmp/velk.phone.android.PhoneConnActivity.apk", "x");
        for (const std::string& line : lines) run_shell(test.phone, line);
        EXPECT_EQ(test.phone.agent.listening(), listens) << testing::PrintToString(lines);
        EXPECT_TRUE(test.phone.store.apps().empty()) << "the agent does not list itself";
    }
}

}  // namespace
}  // namespace velk
