#include "bridge/adb_command.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using Words = std::vector<std::string>;

struct Operation {
    std::function<std::string(ADB_Command&, const std::string& tool)> run;
    Words vector;
    std::string logged;  // nothing when empty
};

TEST(ADB_Command, passes_each_argument_whole_and_logs_the_exchange) {
    using Tool = const std::string&;
    const Operation operations[] = {
        {[](ADB_Command& adb, Tool t) { return adb.adb_kill_server(t); },
         {"kill-server"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) { return adb.get_adb_device(t); }, {"devices"}, ""},
        {[](ADB_Command& adb, Tool t) { return adb.get_adb_start(t); }, {"start-server"}, ""},
        {[](ADB_Command& adb, Tool t) { return adb.Install_Apk_To_Android(t, "S1", "/a b/c.apk"); },
         {"-s", "S1", "install", "-r", "/a b/c.apk"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) {
             return adb.Push_File_To_Android(t, "S1", "/m y/so'ng \"1\".mp3", "/sdcard/music");
         },
         {"-s", "S1", "push", "/m y/so'ng \"1\".mp3", "/sdcard/music"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) {
             return adb.Pull_File_To_Computer(t, "S1", "/sdcard/a b.jpg", "/tmp/$HOME;.jpg");
         },
         {"-s", "S1", "pull", "/sdcard/a b.jpg", "/tmp/$HOME;.jpg"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) { return adb.Broadcast_To_openUSBConnect(t, "S1"); },
         {"-s", "S1", "shell", "am", "broadcast", "-a", "openUSBConnect"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) { return adb.Launch_apk_in_Phone(t, "S1", "p/.Activity"); },
         {"-s", "S1", "shell", "am", "start", "-a", "android.intent.action.Main", "-n",
          "p/.Activity"},
         "get:[said]\n"},
        {[](ADB_Command& adb, Tool t) {
             return adb.Launch_apk_in_Phone(t, "S1", "12300", "12186");
         },
         {"-s", "S1", "forward", "tcp:12300", "tcp:12186"},
         "Return:\nsaid\n"},
    };
    for (const Operation& operation : operations) {
        const Fake_Adb adb;
        for (const char* const command : {"kill-server", "devices", "start-server", "install",
                                          "push", "pull", "shell", "forward"})
            adb.answer(command, "said");
        ADB_Command command;
        testing::internal::CaptureStderr();
        EXPECT_EQ(operation.run(command, adb.tool()), "said");
        const std::string log = testing::internal::GetCapturedStderr();
        EXPECT_THAT(adb.calls(), ElementsAre(operation.vector));
        if (operation.logged.empty())
            EXPECT_EQ(log, "");
        else
            EXPECT_THAT(log, HasSubstr(": " + operation.logged));
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
                    HasSubstr("Uninstall:'a.b' :: [" + output + "]"));
    }
    EXPECT_EQ(adb.call_lines().front(), "-s S1 uninstall a.b");
}

TEST(ADB_Command, calls_a_forward_good_when_the_tool_printed_nothing) {
    const Fake_Adb adb;
    adb.answer("forward", {.errors = "error: device offline\n", .status = 1});
    EXPECT_EQ(ADB_Command().Launch_apk_in_Phone(adb.tool(), "S1", "12300", "12186"),
              "[OK!] adb -s S1 forward tcp:12300 tcp:12186 successfully!\n");
    adb.answer("forward", "12300\n");
    EXPECT_EQ(ADB_Command().Launch_apk_in_Phone(adb.tool(), "S1", "12300", "12186"), "12300\n");
}

TEST(ADB_Command, gives_no_text_without_a_tool_or_without_utf8) {
    EXPECT_EQ(ADB_Command().get_adb_device("/nowhere/adb"), "");
    const Fake_Adb adb;
    adb.answer("devices", "List of devices attached \n\xC3(\tdevice\n");
    EXPECT_EQ(ADB_Command().get_adb_device(adb.tool()), "");
    adb.answer("devices", "List of devices attached \nGerät\tdevice\n");
    EXPECT_EQ(ADB_Command().get_adb_device(adb.tool()),
              "List of devices attached \nGerät\tdevice\n");
}

TEST(ADB_Command, gets_the_working_directory) {
    EXPECT_EQ(ADB_Command().get_pwd(), std::filesystem::current_path().string() + "\n");
}

}  // namespace
}  // namespace velk
