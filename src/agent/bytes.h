// Reading the agent's bytes at a place: what lies beyond their end is not there, or counts as 0.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "agent/sock_apk.h"

namespace velk {

/// `count` bytes from `at`, or those of them that there are.
inline std::string_view bytes_at(std::string_view bytes, std::size_t at, std::size_t count) {
    return bytes.substr(std::min(at, bytes.size()), count);
}

/// The value of the four-byte length field at `at`.
inline std::size_t length_at(std::string_view bytes, std::size_t at) {
    return static_cast<std::size_t>(sock_apk::for_java_char4_to_int(bytes_at(bytes, at, 4)));
}

/// The place behind the text whose length field stands at `at`.
inline std::size_t behind_text(std::string_view bytes, std::size_t at) {
    return at + 4 + length_at(bytes, at);
}

}  // namespace velk
