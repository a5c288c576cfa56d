#include "bridge/adb_wrappers.h"

#include <gmock/gmock.h>

#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::ElementsAre;

/// The tests run on the user-interface thread, where nothing has to be asked or waited for.
class No_Window : public Desktop {
  public:
    void open_alert(const Alert&, std::function<void(int)>) override {}
    void beep() override {}
    bool end_editing() override { return true; }
    void terminate() override {}

  protected:
    void wake() override {}
};

class Adb_Wrappers_Test : public testing::Test {
  protected:
    Adb_Wrappers_Test() { g_adb_tool_file.clear(); }

    No_Window desktop_;
    Fake_Adb adb_;
    Adb_Wrappers session_{desktop_, adb_.directory()};
};

TEST_F(Adb_Wrappers_Test, run_no_tool_before_its_path_is_known) {
    EXPECT_EQ(session_.adb_devices(), "[g_adb_tool_file length<=0]");
    EXPECT_THAT(adb_.calls(), ElementsAre());

    session_.get_adb_full_path();
    EXPECT_EQ(g_adb_tool_file, adb_.directory() + "/adb");
    adb_.answer("devices", "List of devices attached \n\n");
    EXPECT_EQ(session_.adb_devices(), "List of devices attached \n\n");
}

TEST_F(Adb_Wrappers_Test, speak_to_the_phone_in_use) {
    session_.get_adb_full_path();
    session_.m_device_serial_number = "S1";
    session_.adb_start();
    session_.adb_kill_server();
    EXPECT_EQ(session_.adb_uninstall_apk("a.b"), "[Success!] Uninstall APK:'a.b'.");
    session_.adb_install_apk(session_.get_current_app_path() + "/" +
                             session_.m_str_install_apk_file);
    session_.adb_run_apk(session_.m_str_apk_name_run);
    session_.adb_broadcast();
    session_.adb_tcp_in_mobile_phone_all();
    EXPECT_THAT(
        adb_.call_lines(),
        ElementsAre(
            "start-server", "kill-server", "-s S1 uninstall a.b",
            "-s S1 install -r " + adb_.directory() + "/velk.phone.android.PhoneConnActivity.apk",
            "-s S1 shell am start -a android.intent.action.Main -n "
            "velk.phone.android/.PhoneConnActivity",
            "-s S1 shell am broadcast -a openUSBConnect", "-s S1 forward tcp:12300 tcp:12186",
            "-s S1 forward tcp:12301 tcp:12176", "-s S1 forward tcp:12302 tcp:12166",
            "-s S1 forward tcp:12303 tcp:12156"));
}

TEST(Executable_Directory, is_where_the_running_program_stands) {
    EXPECT_TRUE(std::filesystem::exists(executable_directory() + "/bridge_test"));
}

}  // namespace
}  // namespace velk
