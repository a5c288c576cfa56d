#include "base/file.h"
#include "managers/sms_export.h"
#include "managers/sms_fixture.h"
#include "support/temporary_folder.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

class SMS_Section : public SMS_Test {
  protected:
    /// Sorted from the last to the first.
    void load_three() {
        load({{"1", "a", "d1", 1, 11, 5},
              {"2", "b\nc", "d2", 2, 22, 6},
              {"3", "e", "d3", 1, 33, 7}});
        sms.m_table.sort(0, false);
        recorder.clear();
    }
    void delete_rows(const std::vector<int>& rows) {
        sms.m_table.select(rows, rows.back());
        window.test_desktop.answer_alert(yes);
        sms.OnClick_Button_Delete();
    }
    std::string detail() const {
        return sms.m_LB_Tel.text() + sms.m_LB_SMS_DateTime.text() + sms.m_LB_sms_content.text();
    }
};

TEST_F(SMS_Section, tells_its_progress_row_by_row_and_then_the_count) {
    g_int_count_sms = 3;
    agent.reply_to(47, Agent_Double::messages({{"12", "a\nb", "d1", 1}, {"34\0x"s, "c", "d2", 7}}));
    sms.OnBT_Refresh();
    finish();
    EXPECT_THAT(
        recorder.lines(),
        ElementsAre("m_table_SMS reloaded: 0 rows", "m_table_SMS: 1 rows", "m_table_SMS scrolled",
                    "m_LB_TIPS: Loading No.1 '12'message......", "m_table_SMS: 2 rows",
                    "m_table_SMS scrolled", "m_LB_TIPS: Loading No.2 '34'message......",
                    "m_LB_TIPS: There are 2 message(s) on your Mobile Phone.", "title 1: SMS(2)",
                    "captions white"));
    EXPECT_EQ(sms.table_rows[0].col_sms_content_show, "a b");
    EXPECT_EQ(sms.table_rows[0].col_sms_type + sms.table_rows[1].col_sms_type, "InboxOutbox");
    EXPECT_NE(sms.quiet.m_LB_Quiet.text(), "");  // the phone counted one more
}

TEST_F(SMS_Section, deletes_the_selected_with_all_three_requests_and_reloads) {
    load_three();
    for (const char* reply : {"ok", "ok", "", "", "", "ok"}) agent.reply_once_to('N', reply);
    delete_rows({0, 1});
    EXPECT_EQ(detail(), "2d2b\nc");
    finish();
    std::vector<std::string> requests;
    for (const std::string& ids : {"\x21\0\0\0\7"s, "\x16\0\0\0\6"s})
        for (const char* variant : {"\2", "\1", "\x14"})
            requests.push_back("N\0\x08\0\0\0"s + ids + variant + "\0\0"s);
    EXPECT_EQ(edits(), requests);
    EXPECT_THAT(
        std::vector(recorder.lines().begin(), recorder.lines().begin() + 5),
        ElementsAre("alert: Are you sure you want to delete the selected item(s)?",
                    "m_LB_TIPS: Faild to delete '3'.", "m_LB_TIPS: Successfully deleted '2'.",
                    "m_table_SMS reloaded: 1 rows", "m_table_SMS reloaded: 0 rows"));
    EXPECT_EQ(agent.codes().back(), "47");
    EXPECT_EQ(detail(), "");
}

TEST_F(SMS_Section, deletes_all_one_by_one_in_their_order_and_reads_nothing_afterwards) {
    load_three();
    for (const char* reply : {"", "", "ok"}) agent.reply_once_to('N', reply);
    window.test_desktop.answer_alert(yes);
    sms.OnBT_SMS_DeleteAll();
    sms.OnBT_SMS_DeleteAll();  // one runs already
    finish();
    EXPECT_THAT(
        recorder.lines(),
        ElementsAre("alert: Are your sure you want to delete all items?",
                    "m_LB_TIPS: Successfully deleted '3'.", "m_LB_TIPS: Faild to delete '2'.",
                    "m_LB_TIPS: Faild to delete '1'.", "m_table_SMS reloaded: 0 rows"));
    EXPECT_EQ(edits().size(), 9U);
    EXPECT_EQ(agent.codes().back(), "78");
}

TEST_F(SMS_Section, tells_of_messages_that_a_delete_all_took_from_the_table_untried) {
    load_three();
    agent.reply_to('N', "ok");
    window.test_desktop.answer_alert(yes);
    during_an_edit(
        'N', [this] { sms.OnBT_SMS_DeleteAll(); },
        [this] {
            sms.OnBT_Refresh();
            EXPECT_TRUE(window.test_desktop.pump_until([] { return g_can_click_sms_load == 1; }));
        });
    EXPECT_EQ(edits().size(), 9U);
    EXPECT_EQ(sms.table_rows.count(), 0);
    EXPECT_EQ(g_table_sms_need_refresh, 1);
    EXPECT_EQ(sms.quiet.m_LB_Quiet.text(), list_is_old);
}

TEST_F(SMS_Section, deletes_no_more_once_another_phone_is_connected) {
    load_three();
    agent.reply_to('N', "ok");
    during_an_edit(
        'N',
        [this] {
            delete_rows({0, 1, 2});
        },
        swap_phones);
    EXPECT_EQ(edits().size(), 3U);
    EXPECT_EQ(sms.quiet.m_LB_Quiet.text(), "2 of 3 failed: " + std::string(another_phone));
}

TEST_F(SMS_Section, lets_a_load_go_on_behind_a_delete_all_of_nothing) {
    std::promise<void> answer;
    agent.reply_to(47, Agent_Double::held_back(Agent_Double::messages({{"1", "a", "d1"}}), answer));
    sms.OnBT_Refresh();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return agent.requests().size() == 1; }));
    sms.m_LB_sms_content.set_text("old");
    window.test_desktop.answer_alert(yes);
    sms.OnBT_SMS_DeleteAll();
    ASSERT_TRUE(window.test_desktop.pump_until([] { return g_can_click_sms_delete_all == 1; }));
    EXPECT_EQ(sms.m_LB_sms_content.text(), "");
    EXPECT_EQ(sms.quiet.m_LB_Quiet.text(), "The list was still coming, so nothing was deleted.");
    answer.set_value();
    finish();
    EXPECT_EQ(sms.table_rows.count(), 1);
    EXPECT_EQ(recorder.lines_of("title").size(), 1U);
}

TEST_F(SMS_Section, exports_a_page_and_says_why_it_could_not) {
    const Temporary_Folder folder;
    load({{"5", "it's", "d", 1}, {"6", "\\'\r\xFF", "e", 2}});
    for (const std::string& chosen : {folder.path("my.HTML"), folder.path("no/where"), ""s}) {
        window.test_desktop.choose_file(chosen);
        sms.section.commands.back().run();
        finish();
        const std::string path = chosen.empty() ? "" : chosen + ".HTML";
        const bool good = chosen == folder.path("my.HTML");
        EXPECT_EQ(sms.m_LB_TIPS.text(),
                  (good ? "Successed" : "Faild") + " to save \""s + path + "\".");
        EXPECT_EQ(sms.quiet.m_LB_Quiet.text().empty(), good || chosen.empty());
    }
    EXPECT_EQ(window.test_desktop.file_panels()[0].title, "save message to a *.HTML file");
    EXPECT_THAT(read_whole_file(folder.path("my.HTML.HTML")).value_or(""),
                testing::HasSubstr("data=[\n['ID','Phone Number','Date Time','Type','Text'],"
                                   "\n['1','5','d','Received','it\"s'],"
                                   "\n['2','6','e','Sent','\\\\\" \xEF\xBF\xBD']\n];"));
}

TEST(SMS_Plain_Text, lists_the_messages_from_the_last_to_the_first) {
    EXPECT_EQ(sms_plain_text(
                  {row_of(sock_apk::SMS_RECORD{"5", "a\nb", "d", "1", "", "", ""}, 1), {}}, "now"),
              "now\n\n(1)\n         [][]\n\n\n\n(2)\n5         [d][Inbox]\n\na\nb\n");
}

TEST_F(SMS_Test, deletes_nothing_more_once_the_phone_was_connected_anew) {
    load({{"1", "one", "2024", 1, 7, 1}, {"2", "two", "2024", 1, 8, 1}});
    sms.m_table.select({0, 1}, 0);
    agent.reply_to(78, "ok");
    window.test_desktop.answer_alert(yes);
    during_an_edit(
        78, [this] { sms.OnClick_Button_Delete(); }, choose_wire);
    EXPECT_EQ(edits().size(), 3U);  // the three forms of the first one
    EXPECT_EQ(sms.quiet.m_LB_Quiet.text(),
              "1 of 2 failed: The phone was connected anew meanwhile.");
}

}  // namespace
}  // namespace velk
