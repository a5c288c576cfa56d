#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <thread>

#include "agent/sock_apk.h"
#include "base/interruptor.h"
#include "base/text.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using namespace std::string_literals;

/// What the test writes to standard output meanwhile.
template <class Action>
std::string output_of(Action action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

std::size_t open_descriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

/// A reply whose byte 9 is `count`, with `behind` from byte 10 on.
std::string short_reply(int count, const std::string& behind) {
    return std::string(9, 'h') + static_cast<char>(count) + behind;
}

TEST(Channel, ShortValuesAndTheBatteryAreReadByTheirSignedByte) {
    Agent_Double agent;
    const std::pair<std::string, const char*> values[] = {
        {short_reply(3, "abcdef"), "abcd"}, {short_reply(0, "abc"), "a"},
        {short_reply(100, "abc"), "abc"},   {short_reply(200, "abc"), ""},
        {short_reply(3, ""), ""},           {"", ""},
    };
    for (const auto& [reply, value] : values) {
        agent.reply_to(81, reply);
        EXPECT_EQ(sock_apk().send_command_to_apk_for_get_something("81"), value);
    }
    const std::pair<const char*, const char*> levels[] = {
        {"any\x55", "85"}, {"\xC8", "-56"}, {"", ""}};
    for (const auto& [reply, level] : levels) {
        agent.reply_to(38, reply);
        const std::string output = output_of(
            [&, expected = level] { EXPECT_EQ(sock_apk().get_battery_from_apk("38"), expected); });
        EXPECT_EQ(output, format("\n\nsend:'&',[ASCII Value='38']\nReceive data length '%zu' :\n"
                                 "\nrs string length =%zu, str is [%s]\n",
                                 std::strlen(reply), std::strlen(level), level));
    }
}

TEST(Channel, ACodeIsSentAsItsLowSevenBitsAndTracedWhole) {
    Agent_Double agent;
    const std::string output =
        output_of([] { sock_apk().send_command_to_apk_for_get_something("353"); });
    EXPECT_EQ(output,
              "\n\nsend:'a',[ASCII Value='353']\nReceive data length '0' :\n"
              "Return_string_lenth length '0' :\n");
    EXPECT_EQ(agent.requests(), std::vector<std::string>{"a"});
}

TEST(Channel, ACommandGoesOutWithItsZerosAndItsReplyIsCutAt1024) {
    Agent_Double agent;
    const std::string command = "x\0y\0|"s;
    const std::string reply = std::string(700, '\0') + std::string(800, 'r');
    agent.reply_to('x', reply);
    EXPECT_EQ(sock_apk().send_command(command), reply.substr(0, 1024));
    EXPECT_EQ(sock_apk().send_command1(command), reply.substr(0, 1024));
    EXPECT_EQ(agent.requests(), (std::vector<std::string>{command, command}));
    EXPECT_EQ(sock_apk().send_command(""), "");
}

TEST(Channel, WithoutAnAgentEveryRequestIsEmptyBehindOneLineOfError) {
    sock_apk agent;
    std::vector<sock_apk::CONTACT> contacts;
    std::vector<sock_apk::SMS_RECORD> messages;
    const std::function<bool()> all_empty[] = {
        [&] { return agent.send_command_to_apk_for_get_something("81").empty(); },
        [&] { return agent.get_battery_from_apk("38").empty(); },
        [&] { return agent.send_command("x").empty(); },
        [&] { return agent.send_command_get_contatcts_array("14", contacts).empty(); },
        [&] { return agent.add_one_contact("a", "1").empty(); },
        [&] { return agent.send_command_get_sms("47", messages).empty(); },
        [&] { return agent.send_sms("a", "1").empty(); },
        [&] { return !agent.do_command(120); },
    };
    for (const auto& is_empty : all_empty) {
        testing::internal::CaptureStderr();
        EXPECT_TRUE(is_empty());
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "connect: Connection refused\n");
    }
}

TEST(Channel, NoPathLeavesADescriptorOpen) {
    const std::size_t before = open_descriptors();
    sock_apk().send_command("x");
    EXPECT_EQ(open_descriptors(), before) << "refused";
    {
        Agent_Double agent;
        agent.reply_to('x', "yes");
        Agent_Double::Reply broken("part of it");
        broken.end = Agent_Double::Reply::End::reset;
        agent.reply_to(14, broken);
        std::vector<sock_apk::CONTACT> contacts;
        sock_apk().send_command("x");
        sock_apk().send_command("");
        sock_apk().send_command_get_contatcts_array("14", contacts);
    }
    EXPECT_EQ(open_descriptors(), before) << "answered, empty, broken off";
}

TEST(Channel, ASilentAgentIsLeftWhenTheProgramEnds) {
    Agent_Double agent;
    agent.be_silent();
    const std::function<void(sock_apk&)> requests[] = {
        [](sock_apk& apk) { apk.send_command_to_apk_for_get_something("90"); },
        [](sock_apk& apk) { apk.send_command("x"); },
        [](sock_apk& apk) { apk.send_command_get_contatcts("14"); },
    };
    std::size_t asked = 0;
    for (const auto& request : requests) {
        Interruptor interruptor;
        std::thread worker([&] {
            const Interruptor::Use use(interruptor);
            sock_apk apk;
            request(apk);
        });
        EXPECT_TRUE(agent.wait_for_requests(++asked));
        interruptor.cancel();
        worker.join();
    }
}

TEST(Channel, SendingAgainAndAgainEndsWithTheProgram) {
    Agent_Double agent;
    Interruptor interruptor;
    const Interruptor::Use use(interruptor);
    interruptor.cancel();
    EXPECT_EQ(sock_apk().send_command("x"), "");
    EXPECT_EQ(sock_apk().send_command_to_apk_for_get_something("90"), "");
}

}  // namespace
}  // namespace velk
