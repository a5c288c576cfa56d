#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_phone/agent_reply.h"
#include "test_phone.h"

namespace velk {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;

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

TEST(Agent_Replies, empty_lists_are_bare_headers_and_only_the_contacts_close_after_them) {
    Test_Phone test;
    for (const char code : "\x0E/stuvw"sv) {
        const Agent_Answer answer = answer_request(test.phone, {&code, 1});
        EXPECT_EQ(answer.bytes, raw("\0") + code + raw("\0\0\0\1\0"));
        EXPECT_EQ(answer.closes_after, code == '\x0E');
    }
}

/// What a service sends: the sizes of the pieces, and whether it ends.
struct Kept_Outlet : Phone_Outlet {
    std::string all;
    std::vector<std::size_t> pieces;
    bool finished = false;

    void send(std::string bytes, std::chrono::milliseconds) override {
        all += bytes;
        pieces.push_back(bytes.size());
    }
    void finish() override { finished = true; }
};

TEST(Agent_Replies, the_bad_agent_answers_as_it_is_told) {
    const struct {
        std::string play;
        std::vector<std::size_t> pieces;
        bool finished;
    } cases[] = {{"normal", {285}, false},      {"silent", {}, false},
                 {"close-early", {}, true},     {"cut:5", {5}, true},
                 {"cut:0", {0}, true},          {"split:150", {150, 135}, false},
                 {"split:999:1", {285}, false}, {"damaged", {285}, true}};
    for (const auto& [words, pieces, finished] : cases) {
        Test_Phone test;
        const std::string name(263, 'n');
        test.phone.store.add_media({Media_Kind::book, 0, "/" + name, "", "", 0, 40, false});
        const std::string whole = test.ask(119);
        ASSERT_TRUE(play(test.phone.behaviour, words)) << words;
        Kept_Outlet outlet;
        Agent_Link(test.phone).received("w", outlet);
        EXPECT_EQ(outlet.pieces, pieces) << words;
        EXPECT_EQ(outlet.finished, finished) << words;
        EXPECT_EQ(whole.starts_with(outlet.all), words != "damaged") << words;
    }
}

}  // namespace
}  // namespace velk
