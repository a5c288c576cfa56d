// The messages of the adb transport: six little-endian numbers, then the data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace velk {

/// A command is its four letters read as a little-endian number.
constexpr std::uint32_t adb_letters(const char (&letters)[5]) {
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i) value = (value << 8) | static_cast<unsigned char>(letters[i]);
    return value;
}

inline constexpr std::uint32_t g_adb_connect = adb_letters("CNXN");
inline constexpr std::uint32_t g_adb_auth = adb_letters("AUTH");
inline constexpr std::uint32_t g_adb_open = adb_letters("OPEN");
inline constexpr std::uint32_t g_adb_okay = adb_letters("OKAY");
inline constexpr std::uint32_t g_adb_write = adb_letters("WRTE");
inline constexpr std::uint32_t g_adb_close = adb_letters("CLSE");

/// From this transport version on, neither side looks at the data check.
inline constexpr std::uint32_t g_adb_version = 0x01000001;
/// The most data that any adb puts into one message.
inline constexpr std::size_t g_adb_largest_data = 1048576;

struct Adb_Message {
    std::uint32_t command = 0;
    std::uint32_t arg0 = 0;
    std::uint32_t arg1 = 0;
    std::string data;
};

/// The message as it goes over the wire, header and data in one piece.
std::string encode_adb_message(const Adb_Message& message);

enum class Adb_Parse { complete, needs_more, broken };

/// Takes the first message off the front of `buffer`. Nothing moves unless it is complete; broken
/// means that the bytes cannot be a message, and the connection is of no more use.
Adb_Parse take_adb_message(std::string& buffer, Adb_Message& message);

}  // namespace velk
