#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_phone/adb_connection.h"
#include "demo_phone/phone_services.h"
#include "test_phone.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// An adb server that is only bytes: what the phone answers, as messages.
struct Far_Side {
    explicit Far_Side(Demo_Phone& phone) : connection(phone) {}

    std::vector<Adb_Message> say(const Adb_Message& message) {
        EXPECT_TRUE(connection.received(encode_adb_message(message)));
        return hear();
    }
    std::vector<Adb_Message> hear() {
        connection.pump();
        std::vector<Adb_Message> messages(1);
        while (take_adb_message(connection.outgoing(), messages.back()) == Adb_Parse::complete)
            messages.emplace_back();
        messages.pop_back();
        return messages;
    }
    std::vector<Adb_Message> greet(std::uint32_t largest = 4096) {
        return say({g_adb_connect, g_adb_version, largest, "host::"});
    }

    Adb_Connection connection;
};

std::vector<std::uint32_t> commands(const std::vector<Adb_Message>& messages) {
    std::vector<std::uint32_t> found;
    for (const Adb_Message& message : messages) found.push_back(message.command);
    return found;
}

TEST(Transport, a_message_is_taken_only_when_it_is_whole) {
    const std::string whole = encode_adb_message({g_adb_open, 1, 2, "shell:ls"});
    Adb_Message message;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string part = whole.substr(0, i);
        EXPECT_EQ(take_adb_message(part, message), Adb_Parse::needs_more);
        EXPECT_EQ(part, whole.substr(0, i));
    }
    std::string two = whole + whole;
    EXPECT_EQ(take_adb_message(two, message), Adb_Parse::complete);
    EXPECT_EQ(message.data, "shell:ls");
    EXPECT_EQ(two, whole);
}

TEST(Transport, nonsense_ends_the_connection) {
    Test_Phone test;
    std::string huge = encode_adb_message({g_adb_write, 1, 1, ""});
    huge[15] = '\x7F';
    for (const std::string& bytes : {std::string(24, 'x'), huge})
        EXPECT_FALSE(Adb_Connection(test.phone).received(bytes));
}

TEST(Transport, the_handshake_decides_what_the_computer_sees) {
    Test_Phone test;
    EXPECT_THAT(commands(Far_Side(test.phone).greet()), ElementsAre(g_adb_connect));
    test.phone.behaviour.handshake = Phone_Behaviour::Handshake::offline;
    EXPECT_THAT(Far_Side(test.phone).greet(), SizeIs(0));
    test.phone.behaviour.handshake = Phone_Behaviour::Handshake::unauthorized;
    Far_Side stranger(test.phone);
    EXPECT_THAT(commands(stranger.greet()), ElementsAre(g_adb_auth));
    EXPECT_THAT(commands(stranger.say({g_adb_auth, 2, 0, "signature"})), ElementsAre(g_adb_auth));
    EXPECT_THAT(stranger.say({g_adb_auth, 3, 0, "public key"}), SizeIs(0));
    EXPECT_THAT(stranger.say({g_adb_open, 1, 0, "shell:ls"}), SizeIs(0)) << "still a stranger";
}

TEST(Transport, each_packet_waits_for_the_one_before_to_be_taken) {
    Test_Phone test;
    const std::string text(10000, 't');
    Far_Side computer(test.phone);
    computer.greet();
    auto messages = computer.say({g_adb_open, 7, 0, "shell:echo " + text});
    ASSERT_THAT(commands(messages), ElementsAre(g_adb_okay, g_adb_write));
    const std::uint32_t stream = messages[0].arg0;
    EXPECT_EQ(messages[0].arg1, 7U);
    std::string got = messages[1].data;
    EXPECT_THAT(got, SizeIs(4096));
    EXPECT_THAT(computer.hear(), SizeIs(0));
    while (commands(messages = computer.say({g_adb_okay, 7, stream, ""})) ==
           std::vector<std::uint32_t>{g_adb_write})
        got += messages[0].data;
    EXPECT_EQ(got, text + "\n");
    EXPECT_THAT(commands(messages), ElementsAre(g_adb_close));
}

TEST(Transport, services_that_are_not_there_are_refused) {
    Test_Phone test;
    Far_Side computer(test.phone);
    computer.greet();
    for (const char* name : {"tcp:12186", "tcp:80", "tcp:x", "jdwp:1", "shell,v2,raw:ls", ""})
        EXPECT_THAT(commands(computer.say({g_adb_open, 7, 0, name})), ElementsAre(g_adb_close));
    test.phone.agent.install();
    test.phone.agent.start();
    test.phone.agent.wake();
    EXPECT_THAT(commands(computer.say({g_adb_open, 7, 0, "tcp:12186"})), ElementsAre(g_adb_okay));
    EXPECT_THAT(commands(computer.say({g_adb_open, 8, 0, "tcp:12176"})), ElementsAre(g_adb_close));
}

TEST(Transport, the_bad_agent_answers_as_it_is_told) {
    const struct {
        std::string play;
        std::vector<std::size_t> pieces;
        bool finished;
    } cases[] = {{"normal", {13}, true},     {"silent", {}, false},  {"close-early", {}, true},
                 {"cut:5", {5}, true},       {"cut:0", {0}, true},   {"split:5", {5, 5, 3}, true},
                 {"split:20:1", {13}, true}, {"damaged", {13}, true}};
    for (const auto& [words, pieces, finished] : cases) {
        Test_Phone test;
        for (int i = 0; i < 240; ++i) test.phone.store.add_contact("A", "1");
        ASSERT_TRUE(play(test.phone.behaviour, words)) << words;
        Kept_Outlet outlet;
        Agent_Link(test.phone).received("A", outlet);
        std::vector<std::size_t> sizes;
        for (const std::string& piece : outlet.pieces) sizes.push_back(piece.size());
        EXPECT_EQ(sizes, pieces) << words;
        EXPECT_EQ(outlet.finished, finished) << words;
    }
}

TEST(Transport, a_damaged_list_is_damaged_and_ends) {
    Test_Phone test;
    for (int i = 0; i < 100; ++i) test.phone.store.install({"A", std::to_string(i), "1", "", 1});
    const std::string whole = test.ask(116);
    play(test.phone.behaviour, "damaged");
    Kept_Outlet outlet;
    Agent_Link(test.phone).received("t", outlet);
    EXPECT_EQ(outlet.all().size(), whole.size());
    EXPECT_NE(outlet.all(), whole);
    EXPECT_TRUE(outlet.finished);
}

TEST(Behaviour, words_are_understood_whole_or_not_at_all) {
    const struct {
        std::string words;
        std::string now;
    } cases[] = {{"offline", "offline"},
                 {"split:7", "split:7:2"},
                 {"refuse-install,storage-full", "refuse-install,storage-full"},
                 {"unauthorized,normal,cut:0", "cut:0"}};
    for (const auto& [words, now] : cases) {
        Phone_Behaviour behaviour;
        EXPECT_TRUE(play(behaviour, words)) << words;
        EXPECT_EQ(describe_behaviour(behaviour), now);
    }
    for (const char* words : {"", "offlin", "cut", "cut:", "cut:x", "split:0", "silent:1",
                              "offline,nonsense", "cut:1:2:3"}) {
        Phone_Behaviour behaviour;
        EXPECT_FALSE(play(behaviour, words)) << words;
        EXPECT_EQ(describe_behaviour(behaviour), "normal");
    }
}

}  // namespace
}  // namespace velk
