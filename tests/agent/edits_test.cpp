#include <gtest/gtest.h>

#include "agent/sock_apk.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using namespace std::string_view_literals;

/// The pieces one behind the other.
std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string all;
    for (const std::string_view piece : pieces) all.append(piece);
    return all;
}

TEST(Edits, RequestsHaveTheAgentsLayoutAndTheirLengthsWrap) {
    using apk = sock_apk;
    const std::string text(130, 't'), path(123, 'p');
    const char *music = "/sdcard/music/x.mp3", *added = "/sdcard/a.mp3";
    const std::pair<std::string, std::string> cases[] = {
        {apk::get_command(120), joined({"x\0\0\0\0\0"sv})},
        {apk::get_command(353), joined({"a\0\0\0\0\0"sv})},
        {apk::get_add_contact_command("Bob", "12"),
         joined({"5\0\x0C\0\0\0\x08\0\0\0"sv, "Bob*12*|"})},
        {apk::get_add_contact_command(text.c_str(), "9"),
         joined({"5\0\x0A\0\0\0\x06\0\0\0"sv, text, "*9*|"})},
        {apk::get_del_contact_command("42"), joined({"z\0\x07\0\0\0\x03\0\0\0"sv, "42|"})},
        {apk::get_modify_contact_command(text.c_str(), "9", "300"),
         joined({"{\0\x0F\0\0\0\x02\0\0\0"sv, text, "\x2C\1\0\0\1\0\0\0"sv, "9"})},
        {apk::get_del_sms_command("300", "5", 20),
         joined({"N\0\x08\0\0\0\x2C\0\0\0\x05\x14\0\0"sv})},
        {apk::get_send_sms_command("hi", "123"), joined({"2\0\x0B\0\0\0\x07\0\0\0"sv, "123*|hi"})},
        {apk::get_send_sms_command(text.c_str(), "1"),
         joined({"2\0\x09\0\0\0\x05\0\0\0"sv, "1*|", text})},
        {apk::add_command_for_music_image_video_book(108, added),
         joined({"l\0\x12\0\0\0\x0E\0\0\0"sv, added, "|"})},
        {apk::add_command_for_music_image_video_book(108, path.c_str()),
         joined({"l\0\0\0\0\0\x7C\0\0\0"sv, path, "|"})},
        {apk::del_command_for_music_image_video(80, "12", music),
         joined({"P\0\x1C\0\0\0\x18\0\0\0"sv, music, "*12*|"})},
        {apk::del_command_for_book(57, "/b"), joined({"9\0\x07\0\0\0\x03\0\0\0"sv, "/b|"})},
    };
    for (const auto& [made, expected] : cases) EXPECT_EQ(made, expected);
}

TEST(Edits, EachReachesTheAgentIsTracedAndHasSucceededWhenAnyByteComesBack) {
    using apk = sock_apk;
    Agent_Double agent;
    sock_apk client;
    const std::pair<std::function<bool()>, std::string> edits[] = {
        {[&] { return client.modify_one_contact("Al", "9", "300"); },
         apk::get_modify_contact_command("Al", "9", "300")},
        {[&] { return client.del_one_contact("42"); }, apk::get_del_contact_command("42")},
        {[&] { return client.del_one_sms("7", "5"); }, apk::get_del_sms_command("7", "5", 2)},
        {[&] { return client.del_one_sms_for_NoS4("7", "5"); },
         apk::get_del_sms_command("7", "5", 1)},
        {[&] { return client.del_one_sms_for_ver2("7", "5"); },
         apk::get_del_sms_command("7", "5", 20)},
        {[&] { return client.add_one_for_music_image_video_book(108, "a"); },
         apk::add_command_for_music_image_video_book(108, "a")},
        {[&] { return client.del_one_for_music_image_video(84, "1", "a"); },
         apk::del_command_for_music_image_video(84, "1", "a")},
        {[&] { return client.del_one_for_book(57, "a"); }, apk::del_command_for_book(57, "a")},
        {[&] { return client.do_command(120); }, apk::get_command(120)},
    };
    for (const auto& [edit, request] : edits) EXPECT_FALSE(edit());
    agent.reply_by_default(std::string(1, '\0'));
    testing::internal::CaptureStdout();
    for (const auto& [edit, request] : edits) {
        EXPECT_TRUE(edit());
        EXPECT_EQ(agent.requests().back(), request);
    }
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(output.starts_with("text_command len=21\n(0) 123:'{'\n")) << output;
    EXPECT_TRUE(output.ends_with("Successfully!")) << output;

    agent.reply_to('5', Agent_Double::added("104"));
    EXPECT_EQ(apk::get_contact_id(client.add_one_contact("Bob", "12")), "104");
    agent.reply_to('2', "sent");
    EXPECT_EQ(client.send_sms("hi", "123"), "sent");
    EXPECT_EQ(agent.requests().back(), apk::get_send_sms_command("hi", "123"));
}

}  // namespace
}  // namespace velk
