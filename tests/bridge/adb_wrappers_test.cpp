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

TEST(Adb_Wrappers, run_the_tool_beside_the_program_for_the_phone_in_use) {
    No_Window desktop;
    const Fake_Adb adb;
    Adb_Wrappers session(desktop, adb.directory());
    EXPECT_EQ(session.adb_devices(), "[g_adb_tool_file length<=0]");
    EXPECT_TRUE(adb.calls().empty());

    session.get_adb_full_path();
    session.m_device_serial_number = "S1";
    adb.answer("devices", "List of devices attached \n\n");
    EXPECT_EQ(session.adb_devices(), "List of devices attached \n\n");
    session.adb_start();
    session.adb_kill_server();
    EXPECT_EQ(session.adb_uninstall_apk("a.b"), "[Success!] Uninstall APK:'a.b'.");
    session.adb_install_apk(session.get_current_app_path() + "/x.apk");
    session.adb_run_apk("p/.A");
    session.adb_broadcast();
    session.adb_tcp_in_mobile_phone_all();
    EXPECT_THAT(
        adb.call_lines(),
        ElementsAre("devices", "start-server", "kill-server", "-s S1 uninstall a.b",
                    "-s S1 install -r " + adb.directory() + "/x.apk",
                    "-s S1 shell am start -a android.intent.action.Main -n p/.A",
                    "-s S1 shell am broadcast -a openUSBConnect",
                    "-s S1 forward tcp:12300 tcp:12186", "-s S1 forward tcp:12301 tcp:12176",
                    "-s S1 forward tcp:12302 tcp:12166", "-s S1 forward tcp:12303 tcp:12156"));
}

}  // namespace
}  // namespace velk
