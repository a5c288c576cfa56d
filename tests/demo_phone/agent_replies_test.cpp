#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#include "test_phone.h"

namespace velk {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;

std::string number(std::size_t value, int width) {
    std::string bytes;
    while (width-- > 0) bytes += static_cast<char>(value >> 8 * width & 0xFF);
    return bytes;
}
std::string text(const std::string& bytes) {
    return number(bytes.size(), 4) + bytes;
}
std::string framed(std::size_t code, const std::string& records) {
    return number(code, 2) + number(records.size() + 1, 4) + raw("\0") + records;
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

    EXPECT_EQ(test.ask(14), framed(14, text("1") + text("Ann") + text("555")));
    EXPECT_EQ(test.ask(116),
              framed(116, text("1536") + text("2024-01-02") + text("Piano") + text("demo.piano") +
                              text("1.2") + text("/data/app/demo.piano.apk")));
    EXPECT_EQ(test.ask(115),
              framed(115, number(1, 4) + text("Singer") + text("Album") + text("/sdcard/m.wav") +
                              text("61000") + text("10") + number(1, 2)));
    EXPECT_EQ(test.ask(117),
              framed(117, number(2, 4) + text("/sdcard/v.avi") + text("2000") + text("20")));
    EXPECT_EQ(test.ask(118), framed(118, number(3, 4) + text("/sdcard/p.png") + text("30")));
    EXPECT_EQ(test.ask(119),
              framed(119, text("/sdcard/book/b.txt") + text("40") + text("/sdcard/book")));
    EXPECT_EQ(test.ask(47),
              framed(47, text("12") + text("hi\nyou") + text("2024-05-01 10:00:00") + number(2, 2) +
                             number(1, 4) + number(1, 4) + number(1, 2)) +
                  framed(47, ""));
}

/// As a computer reads them: by the last two bytes of each packet's length.
std::vector<std::size_t> packet_lengths(const std::string& reply) {
    std::vector<std::size_t> lengths;
    for (std::size_t at = 0; at < reply.size(); at += lengths.back()) {
        const auto byte = [&](std::size_t i) {
            return static_cast<unsigned char>(reply.at(at + i));
        };
        lengths.push_back(6U + byte(4) * 256U + byte(5));
    }
    return lengths;
}

TEST(Agent_Replies, messages_come_in_packets_that_their_length_fits) {
    Test_Phone test;
    test.phone.settings.messages_per_packet = 2;
    for (int i = 0; i < 5; ++i) test.phone.store.add_message({0, 0, "1", "x", "d", 1, true});
    EXPECT_THAT(packet_lengths(test.ask(47)), ElementsAre(61, 61, 34, 7));

    test.phone.settings.messages_per_packet = 1000;
    const std::string longest(g_longest_message, 'x');
    for (int i = 0; i < 30; ++i) test.phone.store.add_message({0, 0, "2", longest, "d", 1, true});
    const std::string reply = test.ask(47);
    const std::vector<std::size_t> lengths = packet_lengths(reply);
    EXPECT_EQ(std::accumulate(lengths.begin(), lengths.end(), std::size_t{0}), reply.size());
}

TEST(Agent_Replies, empty_lists_are_bare_headers_and_only_the_contacts_close_after_them) {
    Test_Phone test;
    for (const char code : "\x0E/stuvw"sv) {
        const Agent_Answer answer = answer_request(test.phone, {&code, 1});
        EXPECT_EQ(answer.bytes, framed(static_cast<std::size_t>(code), ""));
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
