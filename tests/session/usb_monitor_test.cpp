// The real device library against a simulated bus.
#include "session/usb_monitor.h"

#include <gmock/gmock.h>
#include <malloc.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "session/main_document.h"
#include "simulated_bus.h"
#include "support/fake_adb.h"
#include "support/test_desktop.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

constexpr const char* no_device = "List of devices attached \n\n";
constexpr const char* usable = "List of devices attached \nR58M\tdevice\n\n";

auto open_descriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

int times(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at) ++count;
    return count;
}

class Usb_Monitor_Test : public testing::Test {
  protected:
    Usb_Monitor_Test() {
        desktop.make_sleeps_instant();
        adb.answer("devices", no_device);
        g_can_click_refresh = g_can_click_loading_animation = 1;  // an ended attempt left them
    }
    ~Usb_Monitor_Test() override { desktop.end_work(); }

    /// What the session prints when it starts.
    std::string start() {
        CaptureStdout();
        document = std::make_unique<MainDocument>(desktop, adb.directory(), &usb);
        return GetCapturedStdout();
    }
    void start_without_a_phone() {
        start();
        document->windowControllerDidLoadNib();
        desktop.finish_work();
    }
    /// Lets come in what the bus has said, without what follows from it.
    void listen(int counter) {
        desktop.pump_until([counter] { return g_device == counter; });
    }

    Simulated_Bus bus;
    Fake_Adb adb;
    Test_Desktop desktop;
    Usb_Monitor usb{desktop};
    std::unique_ptr<MainDocument> document;
};

TEST_F(Usb_Monitor_Test, starts_the_first_attempt_for_a_phone_that_is_there_before_the_window) {
    bus.plug({});
    bus.plug({.port = "1-2", .vendor_id = "1234"});
    EXPECT_EQ(start(),
              "Looking for devices matching vendor ID=1256 and product ID=26720.\n"
              "Device added.(101)\n"
              "\nDO:add_device 1\n"
              "Location ID: 0x1100000\n\n"
              "Starting run loop.\n\n"
              "Unexpectedly back from CFRunLoopRun()!\n");
    EXPECT_EQ(g_can_click_refresh, 0);
    EXPECT_EQ(document->m_device_checked, 1);
    document->windowControllerDidLoadNib();
    desktop.finish_work();
    EXPECT_THAT(adb.call_lines(), ElementsAre("devices"));
}

TEST_F(Usb_Monitor_Test, tells_of_a_phone_that_comes_and_goes) {
    start_without_a_phone();
    g_table_sms_need_refresh = 0;
    testing::internal::CaptureStderr();
    CaptureStdout();
    const std::string phone = bus.plug({.port = "1-4.2"});
    listen(102);
    EXPECT_THAT(GetCapturedStdout(), testing::StartsWith("Device added.(102)\n"
                                                         "\nDO:add_device 1\n"
                                                         "Location ID: 0x1420000\n\n"));
    EXPECT_EQ(g_table_sms_need_refresh, 1);
    desktop.finish_work();
    EXPECT_THAT(adb.call_lines(), ElementsAre("devices"));
    EXPECT_EQ(document->m_Control_Box1.view()->name(), "View_SettingPhoneUSB");

    CaptureStdout();
    bus.unplug(phone);
    listen(101);
    EXPECT_EQ(GetCapturedStdout(),
              "Device removed.(101)\n"
              "privateDataRef->deviceName: Moss Phone\n"
              "privateDataRef->locationID: 0x1420000.\n\n");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("deviceName: "));
    EXPECT_EQ(document->m_Control_Box1.view()->name(), "View_Start");
    EXPECT_EQ(document->m_device_checked, 0);
}

TEST_F(Usb_Monitor_Test, counts_arrivals_by_wake_up_and_every_other_message_of_a_phone) {
    start_without_a_phone();
    CaptureStdout();
    const std::string phone = bus.plug({});
    bus.say(phone, "bind");
    bus.plug({.port = "1-2"});
    bus.plug({.port = "1-3", .vendor_id = "1234"});
    bus.say(phone, "add");  // it is known already
    desktop.finish_work();
    const std::string said = GetCapturedStdout();
    EXPECT_EQ(times(said, "Device added.(102)\n"), 2) << said;
    EXPECT_EQ(times(said, "\nDO:add_device 1\n"), 2) << said;
    EXPECT_EQ(g_device, 101);
    EXPECT_THAT(adb.call_lines(), ElementsAre("devices")) << "the second attempt is dropped";

    const std::string other = bus.plug({.port = "1-5", .vendor_id = "1234"});
    bus.unplug(other);
    bus.say(phone, "change");
    listen(100);
    EXPECT_EQ(document->m_device_checked, 1);
}

TEST_F(Usb_Monitor_Test, tells_arrivals_of_one_wake_up_at_once_whatever_comes_between_them) {
    const std::string phone = bus.plug({});
    start_without_a_phone();
    CaptureStdout();
    bus.plug({.port = "1-2"});
    bus.unplug(phone);
    bus.plug({.port = "1-3"});
    desktop.finish_work();
    std::string said = GetCapturedStdout();
    EXPECT_THAT(said, testing::StartsWith("Device removed.(100)\n"));
    EXPECT_EQ(times(said, "Device added.(101)\n"), 2) << said;

    CaptureStdout();
    const std::string hasty = bus.plug({.port = "1-4"});
    bus.unplug(hasty);
    bus.plug({.port = "1-4"});
    desktop.finish_work();
    said = GetCapturedStdout();
    EXPECT_EQ(times(said, "Device added.(102)\n"), 2) << said;
    EXPECT_EQ(times(said, "Location ID: 0x1400000\n"), 1) << said;
    bus.unplug(hasty);
    listen(101);
}

TEST_F(Usb_Monitor_Test, does_not_take_a_phone_for_the_one_that_stood_in_its_place) {
    const std::string phone = bus.plug({});
    start_without_a_phone();
    CaptureStdout();
    bus.replace(phone);
    bus.say(phone, "add");
    desktop.finish_work();
    EXPECT_THAT(GetCapturedStdout(),
                testing::StartsWith("Device removed.(100)\n"
                                    "privateDataRef->deviceName: Moss Phone\n"
                                    "privateDataRef->locationID: 0x1100000.\n\n"
                                    "Device added.(101)\n"));
}

TEST_F(Usb_Monitor_Test, resets_the_screen_for_a_phone_that_comes_during_an_attempt) {
    adb.answer("devices", {.behaviour = Fake_Adb::Behaviour::hangs});
    start();
    document->OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([this] { return adb.is_hanging(); }));
    document->show_setting_phone_usb_view();
    bus.plug({});
    listen(102);
    EXPECT_EQ(document->m_Control_Box1.view()->name(), "View_Start");
    EXPECT_THAT(adb.call_lines(), ElementsAre("devices"));
}

TEST_F(Usb_Monitor_Test, returns_to_the_start_view_when_a_connected_phone_is_pulled_out) {
    adb.answer("devices", usable);
    const std::string phone = bus.plug({});
    start_without_a_phone();
    ASSERT_EQ(g_connected_adb, 1);
    document->OnBT_MyAndroid();
    bus.unplug(phone);
    listen(100);
    EXPECT_EQ(g_connected_adb, 0);
    EXPECT_TRUE(document->m_BT_Refresh.hidden());
    EXPECT_EQ(document->m_Control_Box1.view()->name(), "View_Start");
}

TEST_F(Usb_Monitor_Test, keeps_nothing_of_a_thousand_phones_that_have_gone) {
    start_without_a_phone();
    const auto cycle = [this] {
        const std::string phone = bus.plug({});
        desktop.pump_until([this] { return document->m_device_checked == 1; });
        bus.unplug(phone);
        desktop.pump_until([this] { return document->m_device_checked == 0; });
    };
    g_can_click_refresh = 0;  // the bus alone
    CaptureStdout();
    testing::internal::CaptureStderr();
    for (int i = 0; i < 100; ++i) cycle();
    const auto descriptors = open_descriptors();
    const auto memory = mallinfo2().uordblks;
    for (int i = 0; i < 900; ++i) cycle();
    EXPECT_EQ(open_descriptors(), descriptors);
    EXPECT_LT(mallinfo2().uordblks, memory + 100'000);
    GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    g_can_click_refresh = 1;
    EXPECT_EQ(g_device, 101);
}

TEST_F(Usb_Monitor_Test, sees_which_phones_of_any_maker_can_be_debugged_and_used) {
    const std::string other = bus.plug({.port = "1-2", .product = "Camera", .vendor_id = "1234"});
    bus.add_interface(other, "060101", "");
    const std::string phone = bus.plug({.port = "1-3", .product = "Fern", .vendor_id = "18d1"});
    bus.add_interface(phone, "ffff00", "MTP");
    bus.add_interface(phone, "ff4201", "ADB Interface");
    const std::string mouse = bus.plug({.port = "1-4", .product = "Mouse", .vendor_id = "18d1"});
    bus.add_interface(mouse, "030102", "");
    bus.plug({.port = "1-5", .product = "Moss"});
    std::vector<std::string> seen;
    for (const Usb_Phone& found : usb.phones())
        seen.push_back(found.name + (found.shows_debugging ? " shows debugging" : ""));
    EXPECT_THAT(seen, ElementsAre("Camera", "Fern shows debugging", "Moss"));
}

TEST_F(Usb_Monitor_Test, says_anew_what_stands_in_the_way_when_the_bus_changes) {
    std::ofstream(adb.directory() + "/" + g_apk_install_file) << "package";
    start_without_a_phone();
    document->OnBT_Refresh();
    desktop.finish_work();
    const auto& view =
        dynamic_cast<Connection_View&>(*document->m_views[DEFINE_VIEW_SettingPhoneUSB]);
    EXPECT_THAT(view.m_LB_Trouble.text(), HasSubstr("no phone on the USB bus"));
    const std::string fern = bus.plug({.product = "Fern", .vendor_id = "18d1"});
    bus.add_interface(fern, "ff4201", "");
    bus.say(fern, "bind");
    desktop.pump_until([&] { return view.m_LB_Trouble.text().starts_with("There") == false; });
    EXPECT_THAT(view.m_LB_Trouble.text(), HasSubstr("70-velk.rules"));
    bus.say(fern, "remove");  // the news of its going comes before it is gone
    desktop.pump_until([&] { return view.m_LB_Trouble.text().starts_with("There"); });
    EXPECT_THAT(view.m_LB_Trouble.text(), HasSubstr("no phone on the USB bus"));
}

TEST_F(Usb_Monitor_Test, ends_with_status_0_on_ctrl_c) {
    const auto interrupted = [this] {
        start();
        dup2(STDERR_FILENO, STDOUT_FILENO);
        document->OnBT_Refresh();
        std::raise(SIGINT);
        desktop.finish_work();
    };
    // A copy of this process could start no thread under the thread sanitizer.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(interrupted(), testing::ExitedWithCode(0), "\nInterrupted\\.\n");
}

}  // namespace
}  // namespace velk
