#include <gtest/gtest.h>

#include "agent/sock_apk.h"
#include "base/text.h"

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

TEST(Codec, SizesChangeTheirUnitOnlyAboveItsThreshold) {
    const struct {
        const char *decimal, *in_the_summary, *in_a_list;
    } cases[] = {
        {"1610612736", "1.50GB", "1.50 GB"},
        {"1073741824", "1024.00MB", "1024.00 MB"},
        {"1048577", "1.00MB", "1.00 MB"},
        {"1048576", "1024.00KB", "1024.00 KB"},
        {"1536", "1.50KB", "1.50 KB"},
        {"1024", "0B", "1024.00 B"},
        {"512", "0B", "512.00 B"},
        {"abc", "0B", "0.00 B"},
        {"5000000000", "672.37MB", "672.37 MB"},
        {"-5", "", "-5.00 B"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(sock_apk::format_size(to_int32(each.decimal)), each.in_the_summary);
        EXPECT_EQ(sock_apk::get_size(each.decimal), each.in_a_list);
    }
}

}  // namespace
}  // namespace velk
