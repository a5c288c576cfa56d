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

TEST(Edits, AreTracedByteByByteAndByWhatBecameOfThem) {
    Agent_Double agent;
    agent.reply_to('x', "\1");
    testing::internal::CaptureStdout();
    EXPECT_TRUE(sock_apk().do_command(120));
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(output.starts_with("text_command len=6\n(0) 120:'x'\n")) << output;
    EXPECT_TRUE(output.ends_with("Successfully!")) << output;
}

}  // namespace
}  // namespace velk
