#include <gtest/gtest.h>

#include "agent/sock_apk.h"

namespace velk {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(Codec, LengthsKeepOnlyTheirLowSixteenBits) {
    EXPECT_EQ(sock_apk::for_java_char4_to_int("\0\1\0\5"sv), 5);
    EXPECT_EQ(sock_apk::for_java_char4_to_int("\0\0\1\0"sv), 256);
    EXPECT_EQ(sock_apk::for_java_char4_to_int("\0\0\xFF\xFF"sv), 65535);
    EXPECT_EQ(sock_apk::for_java_char2_to_int("\xFF\xFE"sv), 65534);
    // A field that is cut off counts as zeros.
    EXPECT_EQ(sock_apk::for_java_char4_to_int("\0\0\1"sv), 256);
    EXPECT_EQ(sock_apk::for_java_char2_to_int(""sv), 0);
}

TEST(Codec, NumbersGoOutAsTheAgentReadsThem) {
    const struct {
        const char* decimal;
        std::string little_endian, low_byte;
    } cases[] = {
        {"258", "\2\1\0\0"s, "\0\0\0\2"s},       {"-1", "\xFF\xFF\xFF\xFF"s, "\0\0\0\xFF"s},
        {"0", "\0\0\0\0"s, "\0\0\0\0"s},         {"256", "\0\1\0\0"s, "\0\0\0\0"s},
        {"300", "\x2C\1\0\0"s, "\0\0\0\x2C"s},   {"4294967297", "\1\0\0\0"s, "\0\0\0\1"s},
        {"no number", "\0\0\0\0"s, "\0\0\0\0"s},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(sock_apk::for_java_int(each.decimal), each.little_endian) << each.decimal;
        EXPECT_EQ(sock_apk::for_int_to_java_char4(each.decimal), each.low_byte) << each.decimal;
    }
}

TEST(Codec, CodesAndOneByteLengthsWrapAt128) {
    EXPECT_EQ(sock_apk::toascii(353), 97);
    EXPECT_EQ(sock_apk::toascii(128), 0);
    EXPECT_EQ(sock_apk::toascii(200), 72);
    EXPECT_EQ(sock_apk::toascii(-1), 127);
}

TEST(Codec, SizesOfTheSummaryChangeTheirUnitOnlyAboveItsThreshold) {
    const struct {
        std::int32_t bytes;
        const char* text;
    } cases[] = {
        {1073741825, "1.00GB"},
        {1073741824, "1024.00MB"},
        {2147483647, "2.00GB"},
        {1048577, "1.00MB"},
        {1048576, "1024.00KB"},
        {1025, "1.00KB"},
        {1024, "0B"},
        {512, "0B"},
        {0, "0B"},
        {-5, ""},
        {705032704, "672.37MB"},
    };
    for (const auto& each : cases) EXPECT_EQ(sock_apk::format_size(each.bytes), each.text);
}

TEST(Codec, SizesOfListsAlwaysHaveABlankAndTwoDecimals) {
    const struct {
        const char *decimal, *text;
    } cases[] = {
        {"1536", "1.50 KB"},
        {"1024", "1024.00 B"},
        {"512", "512.00 B"},
        {"0", "0.00 B"},
        {"abc", "0.00 B"},
        {"1048576", "1024.00 KB"},
        {"1073741824", "1024.00 MB"},
        {"1610612736", "1.50 GB"},
        {"5000000000", "672.37 MB"},
        {"-5", "-5.00 B"},
    };
    for (const auto& each : cases) EXPECT_EQ(sock_apk::get_size(each.decimal), each.text);
}

TEST(Codec, DurationsAreCutToWholeSecondsAndTraced) {
    const struct {
        const char *milliseconds, *text;
    } cases[] = {{"3725999", "01:02:05"},
                 {"999", "00:00:00"},
                 {"1000", "00:00:01"},
                 {"2147483647", "596:31:23"},
                 {"", "00:00:00"}};
    for (const auto& each : cases) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(sock_apk::get_time(each.milliseconds), each.text);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), each.text);
    }
}

TEST(Codec, BareCommandsCarryTheirCodeAndFiveZeros) {
    const sock_apk agent;
    EXPECT_EQ(sock_apk::get_command(agent.getCommand_DelAllContacts()), "x\0\0\0\0\0"s);
    EXPECT_EQ(sock_apk::get_command(353), "a\0\0\0\0\0"s);
}

}  // namespace
}  // namespace velk
