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
    for (const char* const word : {"kill-server", "push", "pull", "forward"})
        adb.answer(word, "said");
    ADB_Command command;
    struct {
        std::function<std::string()> run;
        std::vector<std::string> vector;
        std::string logged;
    } const operations[] = {
        {[&] { return command.adb_kill_server(tool); }, {"kill-server"}, "get:[said]\n"},
        {[&] { return command.Push_File_To_Android(tool, "S1", "/so'ng \"1\".mp3", "/sdcard/m"); },
         {"-s", "S1", "push", "/so'ng \"1\".mp3", "/sdcard/m"},
         "get:[said]\n"},
        {[&] { return command.Pull_File_To_Computer(tool, "S1", "/s/a b", "/tmp/$HOME;"); },
         {"-s", "S1", "pull", "/s/a b", "/tmp/$HOME;"},
         "get:[said]\n"},
        {[&] { return command.Launch_apk_in_Phone(tool, "S1", "12300", "12186"); },
         {"-s", "S1", "forward", "tcp:12300", "tcp:12186"},
         "Return:\nsaid\n"},
    };
    for (const auto& [run, vector, logged] : operations) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(run(), "said");
        EXPECT_THAT(testing::internal::GetCapturedStderr(), EndsWith(logged));
        EXPECT_EQ(adb.calls().back(), vector);
    }
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
