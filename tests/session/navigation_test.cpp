#include <algorithm>

#include "managers/contacts_tablesource.h"
#include "session/session_fixture.h"

namespace velk {
namespace {

class Navigation : public Session {
  protected:
    struct Section_Button {
        void (MainDocument::*press)();
        const char* shows;
    };
    static constexpr Section_Button my_android{&MainDocument::OnBT_MyAndroid, "nothing"};
    static constexpr Section_Button four[] = {my_android,
                                              {&MainDocument::OnBT_Contacts, "View_Contacts"},
                                              {&MainDocument::OnBT_SMS, "View_SMS"},
                                              {&MainDocument::OnBT_App, "View_App"}};
    static constexpr Section_Button media[] = {{&MainDocument::OnBT_Music, "View_Music"},
                                               {&MainDocument::OnBT_Photo, "View_Photo"},
                                               {&MainDocument::OnBT_Video, "View_Video"},
                                               {&MainDocument::OnBT_Book, "View_Book"}};

    void show_the_null_view() { document.displayViewController(DEFINE_NULL); }

    /// Presses the button with the empty view shown before; true when it switched.
    bool switches(const Section_Button& button) {
        show_the_null_view();
        (document.*button.press)();
        const std::string view = view_in_the_box();
        EXPECT_TRUE(view == button.shows || view == "View_NULL") << view;
        return view == button.shows;
    }

    void wait_for_the_load() {
        ASSERT_TRUE(desktop.pump_until([] { return g_can_click_contacts_load == 1; }));
    }
};

TEST_F(Navigation, opens_no_section_before_a_connection) {
    for (const Section_Button& button : four) EXPECT_FALSE(switches(button)) << button.shows;
    for (const Section_Button& button : media) EXPECT_FALSE(switches(button)) << button.shows;
}

TEST_F(Navigation, keeps_a_person_in_a_section_that_works_but_for_the_media_sections) {
    g_connected_adb = 1;
    g_table_contacts_need_refresh = 0;
    for (const Section_Button& button : four) EXPECT_TRUE(switches(button)) << button.shows;
    for (const Section_Button& button : media) EXPECT_TRUE(switches(button)) << button.shows;

    for (Flag* working :
         {&g_can_click_contacts_load, &g_can_click_contacts_import, &g_can_click_sms_load}) {
        *working = 0;
        for (const Section_Button& button : four) EXPECT_FALSE(switches(button)) << button.shows;
        for (const Section_Button& button : media) EXPECT_TRUE(switches(button)) << button.shows;
        *working = 1;
    }
    g_can_click_refresh = 0;
    for (const Section_Button& button : media) EXPECT_FALSE(switches(button)) << button.shows;
    g_can_click_refresh = 1;
}

TEST_F(Navigation, gives_a_section_the_window_and_my_android_the_summary_alone) {
    g_connected_adb = 1;
    document.OnBT_Music();
    EXPECT_TRUE(document.m_BT_Refresh.hidden());
    document.OnBT_MyAndroid();
    for (const Outlet* control : document.summary_controls())
        EXPECT_FALSE(control->hidden()) << control->name();
    EXPECT_EQ(view_in_the_box(), "nothing");
}

TEST_F(Navigation, reloads_the_contacts_once_after_a_refresh) {
    phone_is_fine();
    agent.reply_to(14, Agent_Double::contacts({{"7", "Ann", "555"}}));
    refresh();
    for (const int visit : {1, 2}) {
        document.OnBT_Contacts();
        wait_for_the_load();
        EXPECT_EQ(g_contacts_tablesource->table_rows.size(), 1U) << visit;
    }
    const std::vector<std::string> codes = agent.codes();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), "14"), 1);
}

TEST_F(Navigation, changes_nothing_but_beeps_while_an_editor_keeps_the_focus) {
    show_the_null_view();
    desktop.editing_ends = false;
    document.displayViewController(DEFINE_VIEW_SettingPhoneUSB);
    EXPECT_EQ(desktop.beeps(), 1);
    EXPECT_EQ(view_in_the_box(), "View_NULL");
    desktop.editing_ends = true;
    document.displayViewController(nullptr);
    EXPECT_TRUE(document.m_Control_Box1.hidden());
}

TEST_F(Navigation, recolours_the_captions_in_their_order_and_only_when_they_are_white) {
    document.set_BT_Caption_White();
    const std::vector<std::string> in_order = {
        "m_BT_MyAndroid colour: 255 255 255", "m_BT_Contacts colour: 255 255 255",
        "m_BT_SMS colour: 255 255 255",       "m_BT_Apps colour: 255 255 255",
        "m_BT_Photo colour: 255 255 255",     "m_BT_Video colour: 255 255 255",
        "m_BT_Music colour: 255 255 255",     "m_BT_Book colour: 255 255 255"};
    EXPECT_EQ(recorder.lines(), in_order);

    recorder.clear();
    b_is_white_ToolBar_ButtonCaption = 0;
    phone_is_fine();
    refresh();
    for (const std::string& line : recorder.lines())
        EXPECT_EQ(line.find("colour"), std::string::npos) << line;
    b_is_white_ToolBar_ButtonCaption = 1;
}

TEST_F(Navigation, tells_a_message_with_one_button_and_lets_a_worker_wait_for_it) {
    desktop.answer_alert(0);
    document.show_message("from the window");
    desktop.hold_alert();
    bool answered = false;
    Worker::start("asks", [this, &answered] {
        document.show_message("from a worker");
        desktop.post([&answered] { answered = true; });
    });
    ASSERT_TRUE(desktop.pump_until([this] { return desktop.alert_is_open(); }));
    desktop.pump();
    EXPECT_FALSE(answered);
    desktop.press(0);
    ASSERT_TRUE(desktop.pump_until([&answered] { return answered; }));
    for (const Alert& alert : desktop.alerts()) {
        EXPECT_EQ(alert.title, "Information");
        EXPECT_EQ(alert.buttons, std::vector<std::string>{"OK"});
        EXPECT_EQ(alert.style, Alert_Style::warning);
    }
    EXPECT_EQ(desktop.alerts().size(), 2U);
}

}  // namespace
}  // namespace velk
