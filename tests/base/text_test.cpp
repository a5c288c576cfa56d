#include "base/text.h"

#include <gtest/gtest.h>

#include "base/often_tools_function.h"

namespace velk {
namespace {

using namespace std::string_view_literals;

TEST(Text, FormattedTextsMayBeOfAnyLength) {
    const std::string longer_than_any_buffer(100000, 'x');
    EXPECT_EQ(format("<%s>%d", longer_than_any_buffer.c_str(), 7),
              "<" + longer_than_any_buffer + ">7");
    EXPECT_EQ(format("%s", ""), "");
}

TEST(Text, ATextEndsAtItsFirstNul) {
    EXPECT_EQ(until_nul("ab\0cd"sv), "ab");
    EXPECT_EQ(until_nul("abcd"), "abcd");
    EXPECT_EQ(until_nul("\0"sv), "");
}

TEST(Text, OnlyWellFormedUtf8Passes) {
    const struct {
        const char* what;
        std::string_view bytes;
        bool well_formed;
    } cases[] = {
        {"nothing", "", true},
        {"a NUL among letters", "a\0b"sv, true},
        {"two bytes", "\xC3\xAB", true},
        {"three bytes", "\xE6\x9D\x8E", true},
        {"four bytes", "\xF0\x9F\x98\x80", true},
        {"highest number", "\xF4\x8F\xBF\xBF", true},
        {"beyond the highest", "\xF4\x90\x80\x80", false},
        {"surrogate", "\xED\xA0\x80", false},
        {"overlong in two", "\xC1\xBF", false},
        {"overlong in three", "\xE0\x9F\xBF", false},
        {"overlong in four", "\xF0\x8F\xBF\xBF", false},
        {"stray continuation", "a\x80", false},
        {"cut off in two", "\xC3", false},
        {"cut off in four", "\xF0\x9F\x98", false},
        {"broken in the middle", "\xE6\x9Dx", false},
        {"no lead byte", "\xFF", false},
    };
    for (const auto& each : cases) EXPECT_EQ(is_utf8(each.bytes), each.well_formed) << each.what;
}

TEST(Text, NumbersAreReadAsFarAsTheyGoAndWrapAt32Bits) {
    const struct {
        const char* text;
        std::int32_t number;
    } cases[] = {{"42", 42},
                 {" \t-42x", -42},
                 {"+7", 7},
                 {"12x", 12},
                 {"", 0},
                 {"x12", 0},
                 {"2147483648", -2147483647 - 1},
                 {"4294967296", 0},
                 {"5000000000", 705032704}};
    for (const auto& each : cases) EXPECT_EQ(to_int32(each.text), each.number) << each.text;
    EXPECT_EQ(to_int32(std::string_view("123").substr(0, 2)), 12) << "read beyond its end";
}

TEST(Text, TheTimeHasItsTwoDigitsAndBlanks) {
    const std::string now = often_tools_function::get_current_date_time();
    const std::string pattern = "dddd-dd-dd dd:dd:dd";
    ASSERT_EQ(now.size(), pattern.size());
    for (std::size_t i = 0; i < now.size(); ++i)
        EXPECT_EQ(std::isdigit(now[i]) != 0 ? 'd' : now[i], pattern[i]) << now;
}

}  // namespace
}  // namespace velk
