#include <gtest/gtest.h>

#include <random>

#include "agent/sock_apk.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using namespace std::string_literals;
using SMS_RECORD = sock_apk::SMS_RECORD;

std::string two_bytes(std::size_t value) {
    return Agent_Double::number(value).substr(2);
}
std::string record(const std::string& tel, const std::string& body, std::size_t id) {
    return Agent_Double::field(tel) + Agent_Double::field(body) + Agent_Double::field("2024") +
           two_bytes(1) + Agent_Double::number(id) + Agent_Double::number(5) + two_bytes(0);
}
std::string packet(const std::string& records) {
    return "\0/"s + Agent_Double::number(records.size() + 1) + "\0"s + records;
}

std::string line(const SMS_RECORD& sms) {
    return sms.TEL + "," + sms.TEXT + "," + sms.DATE + "," + sms.TYPE + "," + sms.ID + "," +
           sms.threadID + "," + sms.read;
}

TEST(Sms, AChunkGivesItsWholeRecordsAndLeavesTheRest) {
    const std::string one = record("5", "A", 7), two = record("6", "\xFF\0b\n"s, 300);
    const std::string header = packet("");
    const struct {
        const char* what;
        std::string data;
        int start;
        std::size_t records;
        std::string left;
    } cases[] = {
        {"behind the reply's header", header + one, 7, 1, ""},
        {"a header between them", one + packet(two), 0, 2, ""},
        {"a header at the end", one + header, 0, 1, header},
        {"a header that is cut", one + header.substr(0, 6), 0, 1, ""},
        {"fewer than four bytes", one + two.substr(0, 3), 0, 1, two.substr(0, 3)},
        {"cut in a length", one + two.substr(0, 15), 0, 1, two.substr(0, 15)},
        {"one byte short", one + two.substr(0, two.size() - 1), 0, 1,
         two.substr(0, two.size() - 1)},
        {"a start beyond the end", one, 500, 0, ""},
        {"nothing", "", 7, 0, ""},
    };
    for (const auto& each : cases) {
        std::vector<SMS_RECORD> messages;
        EXPECT_EQ(sock_apk::get_sms_data_to_stru_array(
                      each.data, static_cast<int>(each.data.size()), 1, messages, each.start, 0),
                  each.left)
            << each.what;
        ASSERT_EQ(messages.size(), each.records) << each.what;
        const std::string lines[] = {"5,A,2024,1,7,5,0", "6,\xFF\0b\n,2024,1,300,5,0"s};
        for (std::size_t i = 0; i < messages.size(); ++i)
            EXPECT_EQ(line(messages[i]), lines[i]) << each.what;
    }
}

TEST(Sms, DamagedBytesAreReadWithinTheirBounds) {
    std::vector<SMS_RECORD> messages;
    sock_apk::get_sms_data_to_stru_array(record("5", "A", 7), 5000, 1, messages, 0, 0);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(line(sock_apk::one_sms("\0\0"s, 60000, 60000, 60000, 180024)), ",,,0,0,0,0");
    for (unsigned seed = 0; seed < 2000; ++seed) {
        std::mt19937 random(seed);
        std::string data = record("5", "A", 7) + packet(record("6", "B", 8));
        for (int i = 0; i < 3; ++i) data[random() % data.size()] = static_cast<char>(random());
        data.resize(random() % data.size());
        sock_apk::get_sms_data_to_stru_array(data, static_cast<int>(data.size()), 1, messages, 0,
                                             0);
    }
}

TEST(SmsExchange, EveryMessageArrivesHoweverTheReplyIsCut) {
    Agent_Double agent;
    for (const std::size_t per_packet : {1U, 20U}) {
        std::string reply, records;
        for (std::size_t i = 1; i <= 2000; ++i) {
            // Some are longer than a chunk.
            records += record("5", std::string(i % 100 == 0 ? 9000 : i % 150, 't'), i);
            if (i % per_packet == 0) reply += packet(std::exchange(records, ""));
        }
        agent.reply_to(47, Agent_Double::in_pieces(reply + packet(""), 1009));
        std::vector<SMS_RECORD> messages;
        sock_apk().send_command_get_sms("47", messages);
        ASSERT_EQ(messages.size(), 2000U) << per_packet;
        for (std::size_t i = 0; i < messages.size(); ++i)
            EXPECT_EQ(messages[i].ID, std::to_string(i + 1));
    }
}

}  // namespace
}  // namespace velk
