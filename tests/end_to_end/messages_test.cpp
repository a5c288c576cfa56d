#include <algorithm>

#include "end_to_end/demo_session.h"
#include "managers/sms_tablesource.h"

namespace velk {
namespace {

class Message_Archive : public On_The_Demo_Phone {
  protected:
    void SetUp() override {
        On_The_Demo_Phone::SetUp();
        connect({"--packet", "4096", "--messages", "300", "--messages-per-packet", "7"});
        document.OnBT_SMS();
        desktop.finish_work();
    }
    SMS_TableSource& messages() { return *g_sms_tablesource; }
    /// The texts that the phone holds now, newest first.
    std::vector<std::string> on_the_phone() {
        messages().OnBT_Refresh();
        desktop.finish_work();
        std::vector<std::string> texts;
        for (const auto& row : messages().table_rows) texts.push_back(row.col_sms_content);
        return texts;
    }
};

TEST_F(Message_Archive, sends_and_deletes_what_the_person_says) {
    std::vector<std::string> expected = on_the_phone();
    ASSERT_EQ(expected.size(), 300U);
    desktop.use_dialog([this](Dialog&) {
        SMS_Send& composer = messages().composer();
        composer.m_ET_Send_Contects_telname.type("9999;8888;");
        composer.m_ET_SMS_Content.type("See you\nat \"nine\" \U0001F600");
        composer.OnBT_Send();
    });
    messages().OnBT_SendSMS();
    desktop.finish_work();
    EXPECT_EQ(messages().composer().m_LB_Tips.text(), "Successfully send a message to \"(8888)\"");
    expected.insert(expected.begin(), 2, "See you\nat \"nine\" \U0001F600");
    ASSERT_EQ(on_the_phone(), expected);

    messages().m_table.select({0, 2}, 2);
    EXPECT_EQ(messages().m_LB_sms_content.text(), expected[2]);
    desktop.answer_alert(yes);
    messages().OnClick_Button_Delete();
    desktop.finish_work();
    expected.erase(expected.begin() + 2);
    expected.erase(expected.begin());
    EXPECT_EQ(on_the_phone(), expected);

    desktop.answer_alert(yes);
    messages().OnBT_SMS_DeleteAll();
    desktop.finish_work();
    EXPECT_TRUE(messages().table_rows.empty());
}

}  // namespace
}  // namespace velk
