// Whole attempts: what the window shows, what the tool and the agent are asked, each in order.
#include <algorithm>
#include <chrono>

#include "session/section_views.h"
#include "session/session_fixture.h"

namespace velk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using Lines = std::vector<std::string>;

Lines operator+(Lines lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

/// The captions of the toolbar, coloured together, as one line.
Lines folded(const Lines& recorded) {
    Lines lines;
    for (const std::string& line : recorded)
        if (!line.ends_with(" colour: 255 255 255"))
            lines.push_back(line);
        else if (line.starts_with("m_BT_MyAndroid"))
            lines.push_back("captions white");
    return lines;
}

Lines summary_controls(const std::string& change) {
    Lines lines;
    for (const char* control :
         {"m_BT_Bottom_Apps", "m_BT_Bottom_Contacts", "m_BT_Bottom_SMS", "m_LB_MobileNameBig",
          "m_BT_Refresh", "m_LB_Size_PhoneTotalFree", "m_LB_Size_StorageTotalFree",
          "m_LB_Size_Phone_BK", "m_LB_Size_Storage_BK", "m_LevelIndicator_Size_Phone",
          "m_LevelIndicator_Size_Storage", "m_LB_Free_Phone_Caption", "m_LB_Free_Storage_Caption"})
        lines.push_back(std::string(control) + " " + change);
    return lines;
}

/// A view put into the box; `loading` is what happens when it is loaded.
Lines shown(const std::string& view, const Lines& loading = {}) {
    return Lines{"m_Control_Box1 shown"} + loading +
           Lines{"m_Control_Box1 shown", "m_Control_Box1: nothing", "m_Control_Box1: " + view};
}

/// What a Refresh click shows, up to the worker's first line.
Lines click() {
    return summary_controls("hidden") +
           Lines{"m_LB_ps: Loading......",  "m_LB_ps: Loading ...", "m_BT_SMS: SMS",
                 "m_BT_Contacts: Contacts", "m_BT_Apps: Apps",      "m_BT_Music: Music",
                 "m_BT_Photo: Photo",       "m_BT_Video: Video",    "m_BT_Book: Book",
                 "captions white"} +
           shown("View_Start") + Lines{"m_LB_ps: ", "m_LB_ps: Running android tool..."};
}

TEST_F(Session, shows_a_successful_attempt_in_the_order_it_happens) {
    phone_is_fine();
    refresh();
    const Lines expected =
        click() +
        Lines{"m_LB_Connected: Connected!",
              "m_LB_SerialNumber: R58 M",
              "m_LB_ps: Launching the application on your phone...",
              "m_LB_ps: Start communicating ...",
              "m_LB_ps: Retrieving mobile phone basic information.",
              "m_LB_Battery: 85%",
              "m_Progress_Battery: 4",
              "m_LB_Size_PhoneTotal: 2.86MB",
              "m_LB_Size_PhoneTotal tool tip: 3,000,000 bytes",
              "m_LB_Size_PhoneTotalFree: 976.56KB",
              "m_LB_Size_PhoneTotalFree tool tip: 1,000,000 bytes",
              "m_LB_Size_StorageTotal: 672.37MB",
              "m_LB_Size_StorageTotal tool tip: 5,000,000,000 bytes",
              "m_LB_Size_StorageTotalFree: 1.00GB",
              "m_LB_Size_StorageTotalFree tool tip: 1,073,741,825 bytes",
              "m_LevelIndicator_Size_Phone: 75",
              "m_LevelIndicator_Size_Storage: 39",
              "m_LB_USBConnect: Connected via USB",
              "m_LB_AndroidVersion: 4.4.2",
              "m_LB_MobileNameBig: Demo",
              "m_LB_MobileName: Demo",
              "m_BT_Contacts: Contacts(12x)",
              "m_BT_SMS: SMS(12)",
              "m_BT_Apps: Apps(30)",
              "captions white",
              "m_BT_Photo: Photos(40)",
              "m_BT_Music: Music(60)",
              "m_BT_Video: Videos(8)",
              "m_BT_Book: Books(12)"} +
        shown("View_Start") + Lines{"m_LB_ps: Demo  is connected."} + summary_controls("shown") +
        Lines{"m_BT_Music: Music(0)",  "captions white", "m_BT_Photo: Photos(0)", "captions white",
              "m_BT_Video: Videos(0)", "captions white", "m_BT_Book: Books(0)",   "captions white"};
    EXPECT_EQ(folded(recorder.lines()), expected);
    EXPECT_EQ(g_connected_adb, 1);
    EXPECT_EQ(g_device_serial_number, "R58 M");
    EXPECT_EQ(g_int_count_contacts, 12);
    EXPECT_EQ(g_int_count_sms, 12);
    EXPECT_EQ(g_int_count_apps, 30);
    EXPECT_EQ(g_int_count_music, 60);
    EXPECT_EQ(document.busy.m_LB_Busy.text(), "");
}

TEST_F(Session, asks_the_tool_and_the_agent_for_each_step_once_and_in_order) {
    phone_is_fine();
    refresh();
    EXPECT_THAT(
        adb.call_lines(),
        ElementsAre(
            "devices", "-s R58 M uninstall tarn.phone.android",
            "-s R58 M uninstall prell.phone.android", "-s R58 M uninstall dusk.phone.android",
            "-s R58 M uninstall velk.phone.android", "-s R58 M uninstall quen.phone.android",
            "-s R58 M uninstall fenn.phone.android",
            "-s R58 M install -r " + adb.directory() + "/velk.phone.android.PhoneConnActivity.apk",
            "-s R58 M shell am start -a android.intent.action.Main -n "
            "velk.phone.android/.PhoneConnActivity",
            "-s R58 M shell am broadcast -a openUSBConnect", "-s R58 M forward tcp:12300 tcp:12186",
            "-s R58 M forward tcp:12301 tcp:12176", "-s R58 M forward tcp:12302 tcp:12166",
            "-s R58 M forward tcp:12303 tcp:12156"));
    EXPECT_THAT(agent.codes(), ElementsAre("38", "81", "85", "79", "83", "75", "77", "65", "66",
                                           "67", "68", "70", "72", "74", "114",
                                           // The loads in the background.
                                           "115", "118", "117", "119"));
}

TEST_F(Session, traces_an_attempt_in_the_order_it_happens) {
    phone_is_fine();
    testing::internal::CaptureStdout();
    refresh();
    const std::string traced = testing::internal::GetCapturedStdout();
    std::size_t at = 0;
    for (const char* line :
         {"\nClick Refresh...\n", "Running android tool  :1\n",
          "\nrs string length =2, str is [85]\n", "Total SD Size:[3000000]\n", "Format :2.86MB\n",
          "Total Mobile Available Size:[1000000]\n", "Total Mobile Size:[5000000000]\n",
          "Total Mobile Available Size:[1073741825]\n", "Version:[4.4.2]", "Mobile Name:[Demo]",
          "App Count:[30]", "Photo Count:[40]", "Music Count:[60]", "Video Count:[8]",
          "Book Count=[12]\n", "APK Version=[1.0]\n", "\n--------END-------\n"}) {
        at = traced.find(line, at);
        ASSERT_NE(at, std::string::npos) << line << "is not in its place in " << traced;
    }
    EXPECT_EQ(traced.find("Format :"), traced.rfind("Format :"));
}

TEST_F(Session, tells_each_kind_of_trouble_in_its_own_order) {
    struct Case {
        const char* devices;
        Lines shown;
        const char* view;
    };
    // A trouble view hides the summary's controls when it is loaded, which is once.
    const auto trouble_view = [](const Lines& labels, const std::string& name) {
        return labels + Lines{"m_BT_SMS: SMS", "m_BT_Contacts: Contacts", "captions white"} +
               shown(name, summary_controls("hidden"));
    };
    const Lines not_usable = {"m_LB_Connected: There is no device!",
                              "m_LB_SerialNumber: ", "m_LB_ps: ", "m_LB_ps: "};
    const std::vector<Case> cases = {
        {"", {}, "View_Start"},
        {"error: cannot connect to daemon\n", {}, "View_Start"},
        {"List of devices attached \n\n",
         trouble_view({"m_LB_ps: ", "m_LB_Connected: There is no device!", "m_LB_SerialNumber: "},
                      "View_SettingPhoneUSB"),
         "View_SettingPhoneUSB"},
        {"List of devices attached \nR58M\toffline\n\n", not_usable, "View_Start"},
        {"List of devices attached \nR58M\tunauthorized\n\n",
         trouble_view(not_usable, "View_AllowPCConnect"), "View_AllowPCConnect"},
    };
    for (const Case& trouble : cases) {
        SCOPED_TRACE(trouble.devices);
        adb.answer("devices", trouble.devices);
        recorder.clear();
        refresh();
        EXPECT_EQ(folded(recorder.lines()), click() + trouble.shown);
        EXPECT_EQ(view_in_the_box(), trouble.view);
        EXPECT_EQ(g_connected_adb, 0);
    }
    EXPECT_THAT(adb.call_lines(), Not(Contains(StartsWith("-s"))));
    EXPECT_EQ(g_kill_adb_server_count, 1);
    document.hidden_some(false);
    document.show_setting_phone_usb_view();
    EXPECT_FALSE(document.m_BT_Refresh.hidden()) << "a view that is loaded was loaded again";
}

TEST_F(Session, starts_no_second_attempt_while_one_runs_and_queues_none) {
    phone_is_fine();
    adb.answer("devices", {.behaviour = Fake_Adb::Behaviour::hangs});
    document.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([this] { return adb.is_hanging(); }));
    recorder.clear();
    g_table_contacts_need_refresh = 0;

    document.OnBT_Refresh();
    desktop.pump();
    EXPECT_THAT(recorder.lines(), IsEmpty());
    EXPECT_EQ(g_table_contacts_need_refresh, 0);

    // An arrival resets the screen all the same, and starts nothing.
    document.add_device("Phone");
    desktop.pump();
    EXPECT_THAT(recorder.lines(), Contains("m_LB_ps: Phone  is detected."));
    EXPECT_THAT(recorder.lines(), Contains("m_Control_Box1: View_Start"));
    EXPECT_THAT(adb.call_lines(), ElementsAre("devices"));
}

TEST_F(Session, loads_each_list_behind_an_attempt_also_where_an_earlier_load_still_runs) {
    phone_is_fine();
    std::promise<void> answer;
    agent.reply_once_to(118, Agent_Double::held_back("", answer));
    dynamic_cast<View_Photo&>(*document.m_views[DEFINE_VIEW_Photo]).source.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([&] { return agent.requests().size() == 1; }));
    document.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([&] { return agent.codes().back() == "119"; }));
    ASSERT_TRUE(desktop.pump_until([] { return Worker::running() == 1; }));
    answer.set_value();
    desktop.finish_work();
    const Lines codes = agent.codes();
    EXPECT_THAT(Lines(codes.end() - 4, codes.end()), ElementsAre("115", "117", "119", "118"));
}

TEST_F(Session, loads_no_list_behind_an_attempt_that_a_person_has_refreshed_since) {
    phone_is_fine();
    std::promise<void> answer;
    agent.reply_once_to(115, Agent_Double::held_back("", answer));
    document.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([&] { return agent.codes().size() == 16; }));
    dynamic_cast<View_Book&>(*document.m_views[DEFINE_VIEW_Book]).source.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([] { return Worker::running() == 1; }));
    answer.set_value();
    desktop.finish_work();
    const Lines codes = agent.codes();
    EXPECT_THAT(Lines(codes.end() - 4, codes.end()), ElementsAre("115", "119", "118", "117"));
}

TEST_F(Session, returns_to_a_screen_without_phone_when_it_is_pulled_out) {
    phone_is_fine();
    refresh();
    recorder.clear();
    document.remove_device("Phone");
    EXPECT_EQ(recorder.lines().front(), "m_LB_ps: Remove one device, It is called : Phone");
    EXPECT_TRUE(document.m_BT_Refresh.hidden());
    EXPECT_EQ(view_in_the_box(), "View_Start");
    EXPECT_EQ(g_connected_adb, 0);
    EXPECT_EQ(document.m_device_checked, 0);
}

TEST_F(Session, says_that_it_waits_for_a_silent_agent_and_ends_within_two_seconds_all_the_same) {
    phone_is_fine();
    agent.be_silent();
    document.OnBT_Refresh();
    ASSERT_TRUE(desktop.pump_until([this] { return !agent.requests().empty(); }));
    ASSERT_TRUE(desktop.pump_until(
        [this] { return document.busy.m_LB_Busy.text() == "Waiting for the phone: battery"; }));
    EXPECT_EQ(document.m_LB_ps.text(), "Retrieving mobile phone basic information.");
    const auto closed = std::chrono::steady_clock::now();
    document.windowWillClose();
    EXPECT_LT(std::chrono::steady_clock::now() - closed, std::chrono::seconds(2));
    EXPECT_TRUE(desktop.terminated());
    EXPECT_EQ(Worker::running(), 0);
    EXPECT_THAT(agent.codes(), Contains("90"));
}

}  // namespace
}  // namespace velk
