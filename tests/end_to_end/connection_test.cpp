#include "end_to_end/demo_session.h"
#include "session/device_summary.h"

namespace velk {
namespace {

TEST_F(On_The_Demo_Phone, an_attempt_ends_with_the_summary_and_the_contacts) {
    connect({"--model", "Moss", "--contacts", "300", "--packet", "4096"});
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

TEST_F(On_The_Demo_Phone, a_refused_install_and_broken_replies_end_in_empty_values_and_no_crash) {
    announce_phone({"--play", "refuse-install"});
    refresh();
    EXPECT_EQ(document.m_BT_Contacts.title(), "Contacts()");
    EXPECT_EQ(document.m_LB_Size_PhoneTotal.text(), "0B");
    EXPECT_EQ(document.m_LevelIndicator_Size_Phone.value(), gauge_without_value);
    EXPECT_EQ(document.m_Progress_Battery.value(), 1);

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
