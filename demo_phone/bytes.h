// Numbers as bytes: the transport writes the least significant byte first, the agent the most.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velk {

/// Appends the low `width` bytes of `value`, least significant first.
inline void append_little(std::string& out, std::uint64_t value, int width = 4) {
    for (int i = 0; i < width; ++i) out.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

/// Appends the low `width` bytes of `value`, most significant first.
inline void append_big(std::string& out, std::uint64_t value, int width = 4) {
    for (int i = width - 1; i >= 0; --i)
        out.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

/// The byte at `position` as a number; 0 beyond the end.
inline unsigned byte_at(std::string_view bytes, std::size_t position) {
    return position < bytes.size() ? static_cast<unsigned char>(bytes[position]) : 0U;
}

/// Four bytes from `position`, least significant first; bytes beyond the end count as 0.
inline std::uint32_t little_at(std::string_view bytes, std::size_t position) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = (value << 8) | byte_at(bytes, position + i);
    return value;
}

}  // namespace velk
