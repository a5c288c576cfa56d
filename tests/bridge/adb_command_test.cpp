#include "bridge/adb_command.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::EndsWith;

TEST(ADB_Command, passes_each_argument_whole_and_logs_the_exchange) {
    const Fake_Adb adb;
    const std::string tool = adb.tool();
    for (const char* const command :
         {"kill-server", "devices", "start-server", "install", "push", "pull", "shell", "forward"})
        adb.answer(command, "said");
    ADB_Command command;
    struct {
        std::function<std::string()> run;
        std::vector<std::string> vector;
        std::string logged;
    } const operations[] = {
        {[&] { return command.adb_kill_server(tool); }, {"kill-server"}, "get:[said]\n"},
        {[&] { return command.get_adb_device(tool); }, {"devices"}, ""},
        {[&] { return command.get_adb_start(tool); }, {"start-server"}, ""},
        {[&] { return command.Install_Apk_To_Android(tool, "S1", "/a b/c.apk"); },
         {"-s", "S1", "install", "-r", "/a b/c.apk"},
         "get:[said]\n"},
        {[&] { return command.Push_File_To_Android(tool, "S1", "/so'ng \"1\".mp3", "/sdcard/m"); },
         {"-s", "S1", "push", "/so'ng \"1\".mp3", "/sdcard/m"},
         "get:[said]\n"},
        {[&] { return command.Pull_File_To_Computer(tool, "S1", "/s/a b", "/tmp/$HOME;"); },
         {"-s", "S1", "pull", "/s/a b", "/tmp/$HOME;"},
         "get:[said]\n"},
        {[&] { return command.Broadcast_To_openUSBConnect(tool, "S1"); },
         {"-s", "S1", "shell", "am", "broadcast", "-a", "openUSBConnect"},
         "get:[said]\n"},
        {[&] { return command.Launch_apk_in_Phone(tool, "S1", "p/.A"); },
         {"-s", "S1", "shell", "am", "start", "-a", "android.intent.action.Main", "-n", "p/.A"},
         "get:[said]\n"},
        {[&] { return command.Launch_apk_in_Phone(tool, "S1", "12300", "12186"); },
         {"-s", "S1", "forward", "tcp:12300", "tcp:12186"},
         "Return:\nsaid\n"},
    };
    for (const auto& operation : operations) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(operation.run(), "said");
        const std::string log = testing::internal::GetCapturedStderr();
        EXPECT_TRUE(operation.logged.empty() ? log.empty() : log.ends_with(operation.logged))
            << log;
        EXPECT_EQ(adb.calls().back(), operation.vector);
    }
}

TEST(ADB_Command, counts_an_uninstall_as_failed_only_by_the_bare_word) {
    const std::string failed = "[Failure!] Uninstall APK:'a.b'.";
    const std::string done = "[Success!] Uninstall APK:'a.b'.";
    const std::pair<std::string, std::string> verdicts[] = {
        {"Failure", failed},
        {"Failure\n", done},
        {"Failure [DELETE_FAILED_INTERNAL_ERROR]\n", done},
        {"Success\n", done},
        {"", done},
    };
    const Fake_Adb adb;
    for (const auto& [output, verdict] : verdicts) {
        adb.answer("uninstall a.b", {.output = output});
        testing::internal::CaptureStderr();
        EXPECT_EQ(ADB_Command().Uninstall_Apk_From_Android(adb.tool(), "S1", "a.b"), verdict);
        EXPECT_THAT(testing::internal::GetCapturedStderr(),
                    EndsWith("Uninstall:'a.b' :: [" + output + "]\n"));
    }
    EXPECT_EQ(adb.call_lines().front(), "-s S1 uninstall a.b");
}

TEST(ADB_Command, calls_a_forward_good_when_the_tool_printed_nothing) {
    const Fake_Adb adb;
    adb.answer("forward", {.errors = "error: device offline\n", .status = 1});
    EXPECT_EQ(ADB_Command().Launch_apk_in_Phone(adb.tool(), "S1", "12300", "12186"),
              "[OK!] adb -s S1 forward tcp:12300 tcp:12186 successfully!\n");
}

TEST(ADB_Command, gives_no_text_without_a_tool_or_without_utf8) {
    EXPECT_EQ(ADB_Command().get_adb_device("/nowhere/adb"), "");
    const Fake_Adb adb;
    adb.answer("devices", "List of devices attached \n\xC3(\tdevice\n");
    EXPECT_EQ(ADB_Command().get_adb_device(adb.tool()), "");
}

}  // namespace
}  // namespace velk
