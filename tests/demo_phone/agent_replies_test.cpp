#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "demo_phone/agent_reply.h"
#include "test_phone.h"

namespace velk {
namespace {

using testing::ElementsAre;

/// What a computer makes of a value reply: byte 9 counts, the value begins at byte 10.
std::string value_in(const std::string& reply) {
    return reply.size() < 10 ? "" : reply.substr(10, static_cast<unsigned char>(reply[9]) + 1U);
}

TEST(Agent_Replies, every_value_of_the_summary_is_read_back) {
    Test_Phone test;
    test.phone.store.add_contact("Ann", "1");
    test.phone.store.install({"A", "a.b", "1", "", 1});
    const struct {
        int code;
        std::string value;
    } cases[] = {{81, "2013265920"}, {79, "2040109465"}, {75, "4.4.2"}, {77, "Demo Phone"},
                 {65, "1"},          {66, "0"},          {67, "1"},     {68, "0"},
                 {70, "0"},          {72, "0"},          {74, "0"},     {90, "1"}};
    for (const auto& [code, value] : cases) EXPECT_EQ(value_in(test.ask(code)), value) << code;
    EXPECT_NE(value_in(test.ask(114)), "");
    test.phone.battery = 55;
    EXPECT_EQ(test.ask(38).back(), 55);
}

TEST(Agent_Replies, storage_fills_as_files_arrive) {
    Test_Phone test;
    const long before = std::stol(value_in(test.ask(83)));
    test.storage->write("/sdcard/music/a.wav", std::string(1000, 'x'));
    EXPECT_EQ(std::stol(value_in(test.ask(83))), before - 1000);
    test.phone.behaviour.storage_full = true;
    EXPECT_EQ(value_in(test.ask(83)), "0");
}

TEST(Agent_Replies, records_keep_the_order_of_their_fields) {
    Test_Phone test;
    Phone_Store& store = test.phone.store;
    store.add_contact("Ann", "555");
    store.add_message({0, 0, "12", "hi\nyou", "2024-05-01 10:00:00", 2, true});
    store.install({"Piano", "demo.piano", "1.2", "2024-01-02", 1536});
    store.add_media({Media_Kind::music, 0, "/sdcard/m.wav", "Singer", "Album", 61000, 10, true});
    store.add_media({Media_Kind::video, 0, "/sdcard/v.avi", "", "", 2000, 20, false});
    store.add_media({Media_Kind::photo, 0, "/sdcard/p.png", "", "", 0, 30, false});
    store.add_media({Media_Kind::book, 0, "/sdcard/book/b.txt", "", "", 0, 40, false});

    EXPECT_THAT(read_list(test.ask(14), "ttt"), ElementsAre(ElementsAre("1", "Ann", "555")));
    EXPECT_THAT(read_list(test.ask(116), "tttttt"),
                ElementsAre(ElementsAre("1536", "2024-01-02", "Piano", "demo.piano", "1.2",
                                        "/data/app/demo.piano.apk")));
    EXPECT_THAT(
        read_list(test.ask(115), "4ttttt2"),
        ElementsAre(ElementsAre("1", "Singer", "Album", "/sdcard/m.wav", "61000", "10", "1")));
    EXPECT_THAT(read_list(test.ask(117), "4ttt"),
                ElementsAre(ElementsAre("2", "/sdcard/v.avi", "2000", "20")));
    EXPECT_THAT(read_list(test.ask(118), "4tt"),
                ElementsAre(ElementsAre("3", "/sdcard/p.png", "30")));
    EXPECT_THAT(read_list(test.ask(119), "ttt"),
                ElementsAre(ElementsAre("/sdcard/book/b.txt", "40", "/sdcard/book")));
    std::vector<std::size_t> packets;
    EXPECT_THAT(
        read_messages(test.ask(47), packets),
        ElementsAre(ElementsAre("12", "hi\nyou", "2024-05-01 10:00:00", "2", "1", "1", "1")));
}

TEST(Agent_Replies, messages_come_in_packets_that_their_length_fits) {
    Test_Phone test;
    test.phone.settings.messages_per_packet = 2;
    for (int i = 0; i < 5; ++i) test.phone.store.add_message({0, 0, "1", "x", "d", 1, true});
    std::vector<std::size_t> packets;
    EXPECT_EQ(read_messages(test.ask(47), packets).size(), 5U);
    EXPECT_THAT(packets, ElementsAre(2, 2, 1));

    test.phone.settings.messages_per_packet = 1000;
    const std::string longest(g_longest_message, 'x');
    for (int i = 0; i < 30; ++i) test.phone.store.add_message({0, 0, "2", longest, "d", 1, true});
    EXPECT_EQ(read_messages(test.ask(47), packets).size(), 35U);
}

TEST(Agent_Replies, empty_lists_are_bare_headers) {
    Test_Phone test;
    for (const int code : {14, 47, 115, 116, 117, 118, 119})
        EXPECT_EQ(test.ask(code), raw("\0") + static_cast<char>(code) + raw("\0\0\0\1\0"));
}

TEST(Agent_Replies, only_readers_that_know_their_end_are_left_to_close) {
    Test_Phone test;
    for (const int code : {47, 115, 116, 117, 118, 119})
        EXPECT_FALSE(
            answer_request(test.phone, std::string(1, static_cast<char>(code))).closes_after);
    for (const int code : {14, 38, 81, 90})
        EXPECT_TRUE(
            answer_request(test.phone, std::string(1, static_cast<char>(code))).closes_after);
}

}  // namespace
}  // namespace velk
