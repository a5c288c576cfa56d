#include "base/text.h"

#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace velk {

std::string format(const char* pattern, ...) {
    va_list arguments;
    va_start(arguments, pattern);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, pattern, arguments);
    va_end(arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, pattern, again);
    va_end(again);
    return text;
}

std::string until_nul(std::string_view bytes) {
    return std::string(bytes.substr(0, bytes.find('\0')));
}

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr std::string_view replacement_utf8 = "\xEF\xBF\xBD";
constexpr char32_t first_of_two_units = 0x10000;

/// What a text starts with: a character, or an ill-formed piece that stands for the replacement.
struct Sequence {
    std::size_t length;
    char32_t character;
    bool well_formed;
};

/// Of `bytes`, which are not empty. An ill-formed piece is as much as could have begun a character.
Sequence first_sequence(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return {1, lead, true};
    if (lead < 0xC2 || lead > 0xF4) return {1, replacement, false};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    // The second byte alone tells overlong forms, surrogates and numbers beyond the last plane.
    unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    char32_t character = lead & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (i == bytes.size() || byte(i) < lowest || byte(i) > highest)
            return {i, replacement, false};
        character = character << 6 | (byte(i) & 0x3F);
        lowest = 0x80;
        highest = 0xBF;
    }
    return {length, character, true};
}

/// The same in every locale, the one in which the program happens to run included.
char32_t lower(char32_t character) {
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (character < 0x80 || unicode == nullptr)
        return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), unicode));
}

bool starts_with_ignoring_case(std::string_view text, std::string_view what) {
    while (!what.empty() && !text.empty())
        if (lower(take_character(text)) != lower(take_character(what))) return false;
    return what.empty();
}

}  // namespace

char32_t take_character(std::string_view& text) {
    const Sequence first = first_sequence(text);
    text.remove_prefix(first.length);
    return first.character;
}

bool is_utf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const Sequence first = first_sequence(bytes);
        if (!first.well_formed) return false;
        bytes.remove_prefix(first.length);
    }
    return true;
}

std::string as_utf8(std::string_view bytes) {
    if (is_utf8(bytes)) return std::string(bytes);
    std::string text;
    while (!bytes.empty()) {
        const Sequence first = first_sequence(bytes);
        text += first.well_formed ? bytes.substr(0, first.length) : replacement_utf8;
        bytes.remove_prefix(first.length);
    }
    return text;
}

int utf16_length(std::string_view utf8) {
    int units = 0;
    while (!utf8.empty()) units += take_character(utf8) >= first_of_two_units ? 2 : 1;
    return units;
}

bool contains_ignoring_case(std::string_view text, std::string_view what) {
    for (; !what.empty() && !text.empty(); take_character(text))
        if (starts_with_ignoring_case(text, what)) return true;
    return false;
}

std::int32_t to_int32(std::string_view text) {
    const long long number = std::strtoll(std::string(text).c_str(), nullptr, 10);
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

std::string replace_all(std::string text, char from, char to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

std::string replace_all(std::string text, std::string_view from, std::string_view to) {
    if (from.empty() || text.find(from) == std::string::npos) return text;
    std::string replaced;
    std::size_t start = 0;
    for (std::size_t at = 0; (at = text.find(from, start)) != std::string::npos;
         start = at + from.size())
        replaced.append(text, start, at - start).append(to);
    return replaced.append(text, start);
}

}  // namespace velk
