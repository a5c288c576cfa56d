#include <gtest/gtest.h>

#include <random>

#include "agent/sock_apk.h"
#include "base/text.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using CONTACT = sock_apk::CONTACT;

std::vector<Agent_Double::Contact> many_contacts(std::size_t count) {
    std::vector<Agent_Double::Contact> contacts;
    for (std::size_t i = 0; i < count; ++i)
        contacts.push_back(
            {std::to_string(i), format("Name %04d", static_cast<int>(i)), "01234567|"});
    return contacts;
}

std::string bytes_of(const std::vector<Agent_Double::Contact>& contacts) {
    return Agent_Double::contacts(contacts).pieces.front().bytes;
}

std::vector<CONTACT> ask_for_contacts(bool* too_long = nullptr) {
    std::vector<CONTACT> contacts;
    sock_apk().send_command_get_contatcts_array("14", contacts, too_long);
    return contacts;
}

TEST(ContactsExchange, AllContactsArriveInTheAgentsOrderHoweverTheReplyIsCut) {
    Agent_Double agent;
    // Few rounds: a sender that the system keeps waiting too long would look like the end. Cuts
    // without a clock are tried by the hundred where the chunks are chosen.
    for (unsigned seed = 0; seed < 4; ++seed) {
        std::mt19937 random(seed);
        const std::size_t count = 600 + random() % 500;
        const std::string reply = bytes_of(many_contacts(count));
        ASSERT_LE(reply.size(), 40960U);
        Agent_Double::Reply cut;
        for (std::size_t place = 0; place < reply.size();) {
            const std::size_t length = 1 + random() % (seed % 2 == 0 ? 8192 : 500);
            cut.pieces.push_back({reply.substr(place, length)});
            place += length;
        }
        agent.reply_to(14, cut);
        const std::vector<CONTACT> contacts = ask_for_contacts();
        ASSERT_EQ(contacts.size(), count) << "seed " << seed;
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_EQ(until_nul(contacts[i].ID), std::to_string(i));
        EXPECT_EQ(contacts.back().tel, "01234567");
    }
}

TEST(ContactsExchange, AReplyThatBreaksOffAnywhereGivesNoContacts) {
    Agent_Double agent;
    const std::string reply = bytes_of(many_contacts(3));
    for (std::size_t cut = 0; cut <= reply.size(); ++cut) {
        agent.reply_to(14, reply.substr(0, cut));
        EXPECT_EQ(ask_for_contacts().size(), cut == reply.size() ? 3U : 0U) << "cut at " << cut;
    }
}

TEST(ContactsExchange, AReplyLongerThanTheProtocolCarriesIsToldApartFromAnEmptyOne) {
    Agent_Double agent;
    bool too_long = true;
    agent.reply_once_to(14, Agent_Double::contacts({}));
    EXPECT_TRUE(ask_for_contacts(&too_long).empty());
    EXPECT_FALSE(too_long);
    agent.reply_once_to(14, Agent_Double::contacts(many_contacts(3000)));
    EXPECT_TRUE(ask_for_contacts(&too_long).empty());
    EXPECT_TRUE(too_long);
}

TEST(ContactsExchange, EditsReachTheAgentAndAnyReplyIsSuccess) {
    Agent_Double agent;
    agent.reply_to('5', Agent_Double::added("104"));
    agent.reply_once_to('{', "\1");
    agent.reply_once_to('z', "\1");
    sock_apk apk;
    EXPECT_EQ(sock_apk::get_contact_id(apk.add_one_contact("Bob", "12")), "104");
    testing::internal::CaptureStdout();
    EXPECT_TRUE(apk.modify_one_contact("Al", "9", "300"));
    EXPECT_TRUE(
        testing::internal::GetCapturedStdout().starts_with("text_command len=21\n(0) 123:'{'\n"));
    EXPECT_TRUE(apk.del_one_contact("42"));
    EXPECT_FALSE(apk.modify_one_contact("Al", "9", "300"));
    EXPECT_FALSE(apk.del_one_contact("42"));
    EXPECT_EQ(agent.requests()[0], sock_apk::get_add_contact_command("Bob", "12"));
    EXPECT_EQ(agent.requests()[1], sock_apk::get_modify_contact_command("Al", "9", "300"));
    EXPECT_EQ(agent.requests()[2], sock_apk::get_del_contact_command("42"));
}

}  // namespace
}  // namespace velk
