#include "base/text.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST(Text, IllFormedPiecesAreFoundAndReplaced) {
    const std::string bad = "\xEF\xBF\xBD";
    const struct {
        const char* what;
        std::string_view bytes;
        std::string shown;
        int units;
    } cases[] = {
        {"nothing", "", "", 0},
        {"a NUL among letters", "a\0b"sv, "a\0b"s, 3},
        {"two bytes", "\xC3\xAB", "\xC3\xAB", 1},
        {"three bytes", "\xE6\x9D\x8E", "\xE6\x9D\x8E", 1},
        {"four bytes", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", 2},
        {"highest number", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF", 2},
        {"beyond the highest", "\xF4\x90\x80\x80", bad + bad + bad + bad, 4},
        {"surrogate", "\xED\xA0\x80", bad + bad + bad, 3},
        {"overlong in two", "\xC1\xBF", bad + bad, 2},
        {"overlong in three", "\xE0\x9F\xBF", bad + bad + bad, 3},
        {"overlong in four", "\xF0\x8F\xBF\xBF", bad + bad + bad + bad, 4},
        {"stray continuation", "a\x80", "a" + bad, 2},
        {"cut off in two", "\xC3", bad, 1},
        {"cut off in four", "\xF0\x9F\x98", bad, 1},
        {"broken in the middle", "\xE6\x9Dx", bad + "x", 2},
        {"no lead byte", "\xFF", bad, 1},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(is_utf8(each.bytes), each.bytes == each.shown) << each.what;
        EXPECT_EQ(as_utf8(each.bytes), each.shown) << each.what;
        EXPECT_EQ(utf16_length(each.bytes), each.units) << each.what;
    }
}

TEST(Text, SearchesIgnoreCaseInEveryScript) {
    const struct {
        const char *text, *what;
        bool found;
    } cases[] = {
        {"Anna", "NN", true}, {"ÄRGER λόγος", "ärger Λ", true},
        {"aab", "ab", true},  {"Anna", "", false},
        {"", "a", false},     {"ab", "abc", false},
        {"жук", "ЖУК", true}, {"a\xFF", "\xFE", true},
    };
    for (const auto& each : cases)
        EXPECT_EQ(contains_ignoring_case(each.text, each.what), each.found) << each.text;
}

TEST(Text, NumbersAreReadAsFarAsTheyGoAndWrapAt32Bits) {
    const std::pair<std::string_view, std::int32_t> cases[] = {{" \t-42x", -42},
                                                               {"+7", 7},
                                                               {"", 0},
                                                               {"x12", 0},
                                                               {"4294967296", 0},
                                                               {"2147483648", -2147483647 - 1},
                                                               {"5000000000", 705032704},
                                                               {"123"sv.substr(0, 2), 12}};
    for (const auto& [text, number] : cases) EXPECT_EQ(to_int32(text), number) << text;
}

}  // namespace
}  // namespace velk
