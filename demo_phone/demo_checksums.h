// The two check sums of the formats that the demo files are written in.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace velk {

/// The CRC-32 of pictures and archives.
inline std::uint32_t crc32_of(std::string_view bytes) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> made{};
        for (std::uint32_t i = 0; i < made.size(); ++i) {
            std::uint32_t value = i;
            for (int bit = 0; bit < 8; ++bit)
                value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320U : 0U);
            made[i] = value;
        }
        return made;
    }();
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes)
        crc = table[(crc ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

/// The Adler-32 at the end of a zlib stream.
inline std::uint32_t adler32_of(std::string_view bytes) {
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<unsigned char>(byte)) % 65521;
        high = (high + low) % 65521;
    }
    return (high << 16) | low;
}

}  // namespace velk
