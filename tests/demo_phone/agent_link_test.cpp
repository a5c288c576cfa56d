#include <gtest/gtest.h>

#include "demo_phone/agent_link.h"
#include "demo_phone/demo_data.h"
#include "demo_phone/demo_phone.h"
#include "demo_phone/kept_outlet.h"

namespace velk {
namespace {

using namespace std::string_literals;

struct Test_Phone {
    std::unique_ptr<Phone_Storage> storage = Phone_Storage::open("");
    Phone_Log log;
    Demo_Phone phone{{}, *storage, log};

    std::string ask(std::string_view request) { return answer_request(phone, request).bytes; }
};

// A computer reads no more than the last two bytes of a packet's length.
TEST(Agent_Replies, messages_come_in_packets_that_their_length_fits) {
    Test_Phone test;
    test.phone.settings.messages_per_packet = 1000;
    const std::string longest(g_longest_message, 'x');
    for (int i = 0; i < 30; ++i) test.phone.store.add_message({0, 0, "2", longest, "d", 1, true});
    const std::string reply = test.ask("/");
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(reply.at(i)); };
    std::size_t at = 0;
    while (at < reply.size()) at += 6U + byte(at + 4) * 256U + byte(at + 5);
    EXPECT_EQ(at, reply.size());
}

TEST(Agent_Replies, the_bad_agent_answers_as_it_is_told) {
    const struct {
        std::string play;
        std::vector<std::size_t> pieces;
        bool finished;
    } cases[] = {{"close-early", {}, true},
                 {"cut:5", {5}, true},
                 {"split:150", {150, 135}, false},
                 {"damaged", {285}, true}};
    for (const auto& [words, pieces, finished] : cases) {
        Test_Phone test;
        test.phone.store.add_media(
            {Media_Kind::book, 0, "/" + std::string(263, 'n'), "", "", 0, 40, false});
        const std::string whole = test.ask("w");
        ASSERT_TRUE(play(test.phone.behaviour, words)) << words;
        Kept_Outlet outlet;
        Agent_Link(test.phone).received("w", outlet);
        EXPECT_EQ(outlet.pieces, pieces) << words;
        EXPECT_EQ(outlet.finished, finished) << words;
        EXPECT_EQ(whole.starts_with(outlet.all), words != "damaged") << words;
    }
}

/// A length as the computer writes it: seven bits, whatever is behind.
std::string low(std::size_t length) {
    return static_cast<char>(length & 0x7F) + "\0\0\0"s;
}

std::string framed(char code, const std::string& payload) {
    return code + "\0"s + low(payload.size() + 4) + low(payload.size()) + payload;
}

TEST(Agent_Requests, are_whole_only_at_their_last_byte) {
    for (const std::string& request :
         {framed('5', "Bob*12*|"), framed('5', std::string(200, 'n') + "*1*|"),
          "N\0\x08\0\0\0\x2C\0\0\0\2\2\0\0"s, framed('2', "123*|hi"), "x\0\0\0\0\0"s}) {
        for (std::size_t i = 0; i < request.size(); ++i)
            EXPECT_EQ(state_of_request(request.substr(0, i)), Request_State::needs_more) << i;
        EXPECT_EQ(state_of_request(request), Request_State::complete);
    }
    EXPECT_EQ(state_of_request("\x05"), Request_State::unknown);
}

}  // namespace
}  // namespace velk
