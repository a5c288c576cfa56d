#include <gtest/gtest.h>

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
    // Two rounds: a sender that the system keeps waiting too long would look like the end. Cuts
    // without a clock are tried where the chunks are chosen.
    for (const std::size_t piece : {7777U, 250U}) {
        agent.reply_to(14, Agent_Double::in_pieces(bytes_of(many_contacts(1000)), piece));
        const std::vector<CONTACT> contacts = ask_for_contacts();
        ASSERT_EQ(contacts.size(), 1000U) << piece;
        for (std::size_t i = 0; i < contacts.size(); ++i)
            EXPECT_EQ(until_nul(contacts[i].ID), std::to_string(i));
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

}  // namespace
}  // namespace velk
