#include "base/text.h"

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

/// Length of the well-formed sequence that `bytes` starts with, 0 when it starts with none.
std::size_t sequence_length(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
    // The second byte alone tells overlong forms, surrogates and numbers beyond the last plane.
    const unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (byte(1) < lowest || byte(1) > highest) return 0;
    for (std::size_t i = 2; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    return length;
}

}  // namespace

bool is_utf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequence_length(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::int32_t to_int32(std::string_view text) {
    const long long number = std::strtoll(std::string(text).c_str(), nullptr, 10);
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

std::string replace_all(std::string text, char from, char to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

}  // namespace velk
