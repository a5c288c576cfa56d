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
        open();
    }
    void open() {
        window.test_desktop.use_dialog([](Dialog&) {});
        sms.OnBT_SendSMS();
    }
    /// Opens the picker, waits for its list, selects these rows and presses OK.
    void pick(const std::vector<int>& rows) {
        window.test_desktop.use_dialog([](Dialog&) {});
        composer.OnBT_Contacts();
        finish();
        g_SMS_Contacts->m_table.select(rows, 0);
        g_SMS_Contacts->OnBT_OK();
    }
    /// Types both and presses Send. Gives what went out: "number*|message" of each.
    std::vector<std::string> send(const std::string& recipients, const std::string& message) {
        const std::size_t before = edits().size();
        composer.m_ET_Send_Contects_telname.type(recipients);
        composer.m_ET_SMS_Content.type(message);
        composer.OnBT_Send();
        composer.closeModalWindow();
        finish();
        std::vector<std::string> sent;
        for (const std::string& request : edits()) sent.push_back(request.substr(10));
        sent.erase(sent.begin(), sent.begin() + static_cast<std::ptrdiff_t>(before));
        return sent;
    }
    std::string recipients() const { return composer.m_ET_Send_Contects_telname.text(); }
    std::string tips() const { return composer.m_LB_Tips.text(); }

    SMS_Send& composer = sms.composer();
};

TEST_F(SMS_Composer, sends_nothing_through_another_phone_than_it_was_opened_for) {
    swap_phones();
    EXPECT_THAT(send("9;", "hi"), ElementsAre());
    EXPECT_EQ(composer.m_LB_Quiet.text(), another_phone);
}

TEST_F(SMS_Composer, refuses_what_it_cannot_send_and_counts_in_utf16_units) {
    EXPECT_THAT(send("", "hi"), ElementsAre());
    EXPECT_EQ(tips(), "Please select contacts or enter phone number!");
    EXPECT_THAT(send("9;", ""), ElementsAre());
    EXPECT_EQ(tips(), "Please enter sms contents!");
    std::string longest(138, 'x');
    longest += "\xF0\x9F\x98\x80";
    EXPECT_THAT(send("9;", longest + "y"), ElementsAre());
    EXPECT_EQ(tips(), "141 characters > 140 character,please less character to 140 characters.");
    composer.m_ET_SMS_Content.type(longest);
    EXPECT_EQ(tips(), "140 characters");
    EXPECT_THAT(send("9;", longest), ElementsAre("9*|" + longest));
    open();
    EXPECT_EQ(recipients() + composer.m_ET_SMS_Content.text() + tips(), "");
    EXPECT_TRUE(composer.m_contacts.empty());
}

TEST_F(SMS_Composer, reads_typed_numbers_up_to_the_first_empty_piece) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"9999;;8888;", {"9999*|hi"}},
        {"9;8", {"9*|hi", "8*|hi"}},
        {"9;9;", {"9*|hi", "9*|hi"}},  // none is known before all are gathered
        {";9;", {}},
    };
    for (const auto& [typed, expected] : cases) {
        composer.m_contacts.clear();
        EXPECT_EQ(send(typed, "hi"), expected) << typed;
    }
    EXPECT_EQ(edits()[0],
              "2\0\x0C\0\0\0\x08\0\0\0"
              "9999*|hi"s);
}

TEST_F(SMS_Composer, sends_to_the_picked_who_still_stand_in_the_field) {
    EXPECT_THAT(send("9999;", "hi"), ElementsAre("9999*|hi"));
    pick({0, 1});
    EXPECT_EQ(recipients(), "Anna(1234);Ben(5|6);");  // the typed number is dropped
    for (const int time : {1, 2})
        EXPECT_THAT(send("Ben(5|6);71234;77;", "hi"), ElementsAre("1234*|hi", "5|6*|hi", "77*|hi"))
            << time;
    agent.reply_once_to('2', "ok");
    agent.reply_once_to('2', "");
    EXPECT_THAT(send("Ben(5|6);77;", "hi"), ElementsAre("5|6*|hi", "77*|hi"));
    EXPECT_EQ(tips(),
              "Successfully send a message to \"Ben(5|6)\"");  // of a failure nothing is said
    pick({});
    EXPECT_EQ(recipients(), "Anna(1234);Ben(5|6);");  // nothing selected: the last choice stays
}

}  // namespace
}  // namespace velk
