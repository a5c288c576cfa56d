#include "managers/sms_fixture.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

class SMS_Composer : public SMS_Test {
  protected:
    SMS_Composer() {
        agent.reply_to(14, Agent_Double::contacts({{"7", "Anna", "1234"}, {"8", "Ben", "5|6"}}));
        agent.reply_to('2', "ok");
        window.test_desktop.use_dialog([](Dialog&) {});
        sms.OnBT_SendSMS();
    }

    /// Opens the picker, waits for its list, selects these rows and presses OK.
    void pick(const std::vector<int>& rows) {
        window.test_desktop.use_dialog([](Dialog&) {});
        composer.OnBT_Contacts();
        finish();
        g_SMS_Contacts->m_table.select(rows, rows.empty() ? -1 : rows.back());
        g_SMS_Contacts->OnBT_OK();
    }
    void send(const std::string& recipients, const std::string& message) {
        composer.m_ET_Send_Contects_telname.type(recipients);
        composer.m_ET_SMS_Content.type(message);
        composer.OnBT_Send();
        finish();
    }
    /// What was sent since the last call: "number*|message" of each.
    std::vector<std::string> sent() {
        std::vector<std::string> contents;
        const auto requests = edits();
        for (; seen_ < requests.size(); ++seen_) contents.push_back(requests[seen_].substr(10));
        return contents;
    }
    std::string recipients() const { return composer.m_ET_Send_Contects_telname.text(); }
    std::string tips() const { return composer.m_LB_Tips.text(); }

    SMS_Send& composer = sms.composer();

  private:
    std::size_t seen_ = 0;
};

TEST_F(SMS_Composer, refuses_what_it_cannot_send_and_counts_in_utf16_units) {
    send("", "hi");
    EXPECT_EQ(tips(), "Please select contacts or enter phone number!");
    send("9;", "");
    EXPECT_EQ(tips(), "Please enter sms contents!");
    std::string longest = std::string(138, 'x') + "\xF0\x9F\x98\x80";
    send("9;", longest + "y");
    EXPECT_EQ(tips(), "141 characters > 140 character,please less character to 140 characters.");
    EXPECT_THAT(sent(), ElementsAre());
    composer.m_ET_SMS_Content.type(longest);
    EXPECT_EQ(tips(), "140 characters");
    send("9;", longest);
    EXPECT_THAT(sent(), ElementsAre("9*|" + longest));
}

TEST_F(SMS_Composer, reads_typed_numbers_up_to_the_first_empty_piece) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"9999;", {"9999*|hi"}},
        {"9999;;8888;", {"9999*|hi"}},
        {"9;8", {"9*|hi", "8*|hi"}},
        {"9;9;", {"9*|hi", "9*|hi"}},  // none is known before all are gathered
        {";9;", {}},
    };
    for (const auto& [typed, expected] : cases) {
        composer.m_contacts.clear();
        send(typed, "hi");
        EXPECT_EQ(sent(), expected) << typed;
    }
    EXPECT_EQ(edits()[0], "2\0\x0C\0\0\0\x08\0\0\0"s + "9999*|hi");
}

TEST_F(SMS_Composer, sends_to_the_picked_who_still_stand_in_the_field) {
    send("9999;", "hi");
    pick({0, 1});
    EXPECT_EQ(recipients(), "Anna(1234);Ben(5|6);");  // the typed number is dropped
    sent();
    for (const int time : {1, 2}) {
        send("Ben(5|6);71234;77;", "hi");
        EXPECT_THAT(sent(), ElementsAre("1234*|hi", "5|6*|hi", "77*|hi")) << time;
        EXPECT_EQ(tips(), "Successfully send a message to \"(77)\"");
    }
    send("Ben(5|6);", "hi");
    EXPECT_THAT(sent(), ElementsAre("5|6*|hi"));
    EXPECT_EQ(tips(), "Successfully send a message to \"Ben(5|6)\"");
    pick({});
    EXPECT_EQ(recipients(), "Anna(1234);Ben(5|6);");  // nothing selected: the last choice stays
}

TEST_F(SMS_Composer, goes_on_behind_a_message_that_fails_and_when_it_is_closed) {
    agent.reply_once_to('2', "");
    composer.m_ET_Send_Contects_telname.type("1;2;");
    composer.m_ET_SMS_Content.type("hi");
    composer.OnBT_Send();
    composer.closeModalWindow();
    composer.m_contacts.clear();
    EXPECT_FALSE(window.test_desktop.takes_input());
    finish();
    EXPECT_THAT(sent(), ElementsAre("1*|hi", "2*|hi"));
    EXPECT_EQ(tips(), "Successfully send a message to \"(2)\"");
    EXPECT_EQ(g_phone_was_changed, 1);
}

TEST_F(SMS_Composer, opens_empty_every_time) {
    pick({0});
    send("", "hi");
    composer.closeModalWindow();
    window.test_desktop.use_dialog([](Dialog&) {});
    sms.OnBT_SendSMS();
    EXPECT_EQ(recipients() + composer.m_ET_SMS_Content.text() + tips(), "");
    EXPECT_TRUE(composer.m_contacts.empty());
    EXPECT_EQ(composer.window_title.text(), "Send Message......");
}

}  // namespace
}  // namespace velk
