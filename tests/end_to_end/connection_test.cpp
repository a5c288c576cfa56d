#include "end_to_end/demo_session.h"

namespace velk {
namespace {

TEST_F(On_The_Demo_Phone, an_attempt_ends_with_the_summary_and_the_contacts) {
    announce_phone({"--model", "Moss", "--contacts", "300", "--packet", "4096"});
    ASSERT_TRUE(becomes("device"));
    refresh();
    EXPECT_EQ(g_connected_adb, 1);
    EXPECT_EQ(document.m_LB_ps.text(), "Moss  is connected.");
    EXPECT_EQ(document.m_LB_SerialNumber.text(), serial);
    EXPECT_EQ(document.m_BT_Contacts.title(), "Contacts(300)");
    EXPECT_EQ(document.m_BT_SMS.title(), "SMS(1500)");
    EXPECT_FALSE(document.m_LB_Size_PhoneTotal.text().empty());
    EXPECT_FALSE(document.m_BT_Refresh.hidden());

    load_contacts();
    ASSERT_EQ(rows().size(), 300U);
    EXPECT_EQ(rows()[299].col_no, "300");
    for (const Contacts_TableSource_Column& row : rows()) EXPECT_FALSE(row.col_name.empty());
}

TEST_F(On_The_Demo_Phone, a_phone_that_is_allowed_later_connects_at_the_next_refresh) {
    announce_phone({"--play", "unauthorized"});
    ASSERT_TRUE(becomes("unauthorized"));
    refresh();
    EXPECT_EQ(view(), "View_AllowPCConnect");
    EXPECT_EQ(document.m_LB_Connected.text(), "There is no device!");
    tell("unplug");
    tell("play normal");
    tell("plug");
    ASSERT_TRUE(becomes("device"));
    refresh();
    EXPECT_EQ(document.m_LB_Connected.text(), "Connected!");
    EXPECT_EQ(g_connected_adb, 1);
}

TEST_F(On_The_Demo_Phone, a_pulled_cable_leads_to_the_view_that_helps) {
    announce_phone();
    ASSERT_TRUE(becomes("device"));
    refresh();
    tell("unplug");
    ASSERT_TRUE(becomes(""));
    refresh();
    EXPECT_EQ(view(), "View_SettingPhoneUSB");
    EXPECT_EQ(g_connected_adb, 0);
}

TEST_F(On_The_Demo_Phone, a_refused_install_and_broken_replies_end_in_empty_values_and_no_crash) {
    announce_phone({"--play", "refuse-install"});
    ASSERT_TRUE(becomes("device"));
    refresh();
    EXPECT_EQ(document.m_BT_Contacts.title(), "Contacts()");
    EXPECT_EQ(document.m_LB_Size_PhoneTotal.text(), "0B");

    for (const char* play : {"cut:9", "cut:40", "damaged", "close-early", "split:3:1"}) {
        SCOPED_TRACE(play);
        tell("play " + std::string(play));
        refresh();
        EXPECT_EQ(g_connected_adb, 1);
        load_contacts();
        EXPECT_LE(rows().size(), 240U);
    }
    tell("play normal");
    refresh();
    load_contacts();
    EXPECT_EQ(rows().size(), 240U);
}

}  // namespace
}  // namespace velk
