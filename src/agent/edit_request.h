// The bytes that all edit requests share.
#pragma once

#include <string>

#include "agent/sock_apk.h"

namespace velk {

/// A number of a request: one byte, which wraps at 128, and three zeros.
inline std::string one_byte_length(std::size_t length) {
    return static_cast<char>(sock_apk::toascii(static_cast<int>(length))) + std::string(3, '\0');
}

/// A request: its code, the length of all that follows, then the first field's length and content.
inline std::string edit_request(int code, std::size_t first_length, const std::string& content) {
    return static_cast<char>(sock_apk::toascii(code)) + std::string(1, '\0') +
           one_byte_length(4 + content.size()) + one_byte_length(first_length) + content;
}

/// A request whose content is one field.
inline std::string edit_request(int code, const std::string& content) {
    return edit_request(code, content.size(), content);
}

}  // namespace velk
