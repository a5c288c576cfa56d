#include "managers/contacts_tablesource.h"
#include "managers/sms_tablesource.h"
#include "session/session_fixture.h"

namespace velk {
namespace {

class Navigation : public Session {
  protected:
    struct Section_Button {
        void (MainDocument::*press)();
        const char* shows;
    };
    static constexpr Section_Button four[] = {{&MainDocument::OnBT_MyAndroid, "nothing"},
                                              {&MainDocument::OnBT_Contacts, "View_Contacts"},
                                              {&MainDocument::OnBT_SMS, "View_SMS"},
                                              {&MainDocument::OnBT_App, "View_App"}};
    static constexpr Section_Button media[] = {{&MainDocument::OnBT_Music, "View_Music"},
                                               {&MainDocument::OnBT_Photo, "View_Photo"},
                                               {&MainDocument::OnBT_Video, "View_Video"},
                                               {&MainDocument::OnBT_Book, "View_Book"}};

    /// Presses each button with the empty view shown before; it is left, or not.
    template <std::size_t count>
    void expect(bool open, const Section_Button (&buttons)[count]) {
        for (const Section_Button& button : buttons) {
            document.displayViewController(DEFINE_NULL);
            (document.*button.press)();
            EXPECT_EQ(view_in_the_box(), open ? button.shows : "View_NULL") << button.shows;
        }
    }
};

TEST_F(Navigation, opens_a_section_when_connected_and_keeps_a_person_where_work_is_done) {
    expect(false, four);
    expect(false, media);
    g_connected_adb = 1;
    g_table_contacts_need_refresh = 0;
    g_table_sms_need_refresh = 0;
    g_table_app_need_refresh = 0;
    expect(true, four);
    expect(true, media);
    for (Flag* working :
         {&g_can_click_contacts_load, &g_can_click_contacts_import, &g_can_click_sms_load}) {
        *working = 0;
        expect(false, four);
        expect(true, media);
        *working = 1;
    }
    g_can_click_refresh = 0;
    expect(false, media);
    g_can_click_refresh = 1;
}

TEST_F(Navigation, reloads_contacts_messages_and_applications_once_after_a_refresh) {
    phone_is_fine();
    agent.reply_to(14, Agent_Double::contacts({{"7", "Ann", "555"}}));
    agent.reply_to(47, Agent_Double::messages({{"555", "hi", "today"}}));
    refresh();
    for (const int visit : {1, 2}) {
        document.OnBT_Contacts();
        desktop.finish_work();
        EXPECT_EQ(g_contacts_tablesource->table_rows.size(), 1U) << visit;
        g_sms_tablesource->m_LB_Tel.set_text("before");
        document.OnBT_SMS();
        desktop.finish_work();
        EXPECT_EQ(g_sms_tablesource->table_rows.size(), 1U) << visit;
        EXPECT_EQ(g_sms_tablesource->m_LB_Tel.text(), visit == 1 ? "" : "before");
        document.OnBT_App();
        desktop.finish_work();
    }
    EXPECT_THAT(agent.codes(), testing::Contains("14").Times(1));
    EXPECT_THAT(agent.codes(), testing::Contains("47").Times(1));
    EXPECT_THAT(agent.codes(), testing::Contains("116").Times(1));
}

TEST_F(Navigation, changes_nothing_but_beeps_while_an_editor_keeps_the_focus) {
    document.displayViewController(DEFINE_NULL);
    desktop.editing_ends = false;
    document.displayViewController(DEFINE_VIEW_SettingPhoneUSB);
    EXPECT_EQ(desktop.beeps(), 1);
    EXPECT_EQ(view_in_the_box(), "View_NULL");
    desktop.editing_ends = true;
    document.displayViewController(nullptr);
    EXPECT_TRUE(document.m_Control_Box1.hidden());
}

}  // namespace
}  // namespace velk
