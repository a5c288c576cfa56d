// The launcher with a package beside it, in front of a scripted tool.
#include <gmock/gmock.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>

#include "launched.h"
#include "support/fake_adb.h"
#include "support/temporary_folder.h"

namespace velk {
namespace {

const std::string our_package = "PK\x03\x04.........assets/velk.phone.android.agent....";
const std::string foreign_package = "PK\x03\x04.........assets/velk.phone.android.mp3....";
const std::string socket_header = "Num       RefCount Protocol Flags    Type St Inode Path\n";
const std::string socket_line = "0000000000000000: 00000002 00000000 00010000 0001 01 17 ";
const std::string wire1 = "velk.phone.android.wire1", wire2 = "velk.phone.android.wire2";
const std::string question = "-d shell cat /proc/net/unix";

struct Beside {
    explicit Beside(const std::string& bytes) {
        std::filesystem::copy_file(VELK_LAUNCHER, launcher);
        std::ofstream(package, std::ios::binary) << bytes;
    }
    Launched call(const Words& words) const {
        return launch({"VELK_ADB=" + adb.tool()}, words, launcher);
    }

    const Fake_Adb adb;
    const Temporary_Folder folder;
    const std::string launcher = folder.path("adb");
    const std::string package = folder.path("velk.phone.android.PhoneConnActivity.apk");
};

TEST(Agent_Errands, forward_to_the_socket_of_an_agent_that_has_one) {
    const std::string sockets =
        socket_header + socket_line + "@" + wire1 + "\r\n" + socket_line + "@" + wire2;
    const std::string others =
        socket_header + socket_line + "@" + wire1 + "2\n" + socket_line + "/" + wire1 + "\n";
    const std::string refused = "cat: /proc/net/unix: Permission denied\n";
    const struct {
        std::string package, list, asked;
        Words calls;
    } cases[] = {
        {our_package, sockets, "tcp:12186", {question, "-d forward tcp:1 localabstract:" + wire1}},
        {"stand-in", sockets, "tcp:12176", {question, "-d forward tcp:1 localabstract:" + wire2}},
        {foreign_package, others, "tcp:12186", {question, "-d forward tcp:1 tcp:12186"}},
        {foreign_package, refused, "tcp:12186", {question, "-d forward tcp:1 tcp:12186"}},
        {our_package, refused, "tcp:12186", {question, "-d forward tcp:1 localabstract:" + wire1}},
        {our_package, sockets, "tcp:12166", {"-d forward tcp:1 tcp:12166"}},
    };
    for (const auto& [package, list, asked, calls] : cases) {
        const Beside beside(package);
        beside.adb.answer("shell cat", list.c_str());
        beside.adb.answer("forward", {"1\n", "no\n", 3});
        const Launched launched = beside.call({"-d", "forward", "tcp:1", asked});
        EXPECT_EQ(launched.output + launched.errors, "1\nno\n");
        EXPECT_EQ(launched.status, 3);
        EXPECT_EQ(beside.adb.call_lines(), calls) << package << list;
    }
}

TEST(Agent_Errands, forward_waits_for_our_own_agent_to_start) {
    const Beside beside(our_package);
    beside.adb.answer("shell cat", socket_header.c_str());
    std::atomic<bool> ended = false;
    std::thread phone([&] {
        while (beside.adb.calls().size() < 2 && !ended) std::this_thread::yield();
        beside.adb.answer("shell cat", (socket_header + socket_line + "@" + wire2 + "\n").c_str());
    });
    beside.call({"forward", "tcp:1", "tcp:12176"});
    ended = true;
    phone.join();
    EXPECT_EQ(beside.adb.call_lines().back(), "forward tcp:1 localabstract:" + wire2);
}

TEST(Agent_Errands, install_grants_what_the_phone_lets_the_computer_grant) {
    const std::string good = "pkg\nSuccess\n", bad = "Failure [INSTALL_FAILED_USER_RESTRICTED]\n";
    const std::string unknown = "Error: Unknown option: -g\n", denied = "GRANT_RUNTIME_PERMISSIONS";
    const struct {
        std::string package;
        Fake_Adb::Answer granting, plain;
        Launched expected;
        bool plainly, granted;
    } cases[] = {
        {our_package, {good}, {}, {good, "", 0}, false, true},
        {our_package, {bad, "", 1}, {}, {bad, bad, 1}, false, false},
        {our_package, {unknown}, {good}, {good, "", 0}, true, true},
        {our_package, {"", denied, 1}, {bad}, {bad, "", 0}, true, false},
        {foreign_package, {}, {good}, {good, "", 0}, true, false},
    };
    for (const auto& [bytes, granting, plain, expected, plainly, granted] : cases) {
        const Beside beside(bytes);
        beside.adb.answer("install -r -g", granting);
        beside.adb.answer("install -r", plain);
        beside.adb.answer("shell", {"noise\n", "noise\n", 1});
        Words calls;
        if (bytes == our_package) calls.push_back("-d install -r -g " + beside.package);
        if (plainly) calls.push_back("-d install -r " + beside.package);
        if (granted)
            for (const char* const grant :
                 {"appops set velk.phone.android WRITE_SMS allow",
                  "appops set velk.phone.android LEGACY_STORAGE allow",
                  "appops set velk.phone.android RUN_IN_BACKGROUND allow",
                  "appops set velk.phone.android RUN_ANY_IN_BACKGROUND allow",
                  "dumpsys deviceidle whitelist +velk.phone.android"})
                calls.push_back(std::string("-d shell ") + grant);
        const Launched launched = beside.call({"-d", "install", "-r", beside.package});
        EXPECT_EQ(launched.output, expected.output);
        EXPECT_EQ(launched.errors, expected.errors);
        EXPECT_EQ(launched.status, expected.status);
        EXPECT_EQ(beside.adb.call_lines(), calls);
    }
}

TEST(Agent_Errands, install_grants_nothing_to_a_package_from_elsewhere) {
    const Beside beside(our_package);
    const Temporary_Folder folder;
    const std::string copy = folder.path("other.apk");
    std::ofstream(copy, std::ios::binary) << our_package;
    beside.adb.answer("install -r", "Success\n");
    beside.call({"install", "-r", copy});
    EXPECT_EQ(beside.adb.call_lines(), Words{"install -r " + copy});
}

}  // namespace
}  // namespace velk
