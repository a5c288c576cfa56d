// Small helpers for texts: UTF-8 byte strings that come from the phone, from tools and from people.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velk {

/// A text built as printf builds it, of any length.
std::string format(const char* pattern, ...) __attribute__((format(printf, 1, 2)));

/// What stands before the first NUL; all of it when there is none.
std::string until_nul(std::string_view bytes);

/// True when the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
bool is_utf8(std::string_view bytes);

/// The decimal number a text starts with (blanks and a sign may lead it), wrapped to 32 bits as the
/// phone's agent counts: 5000000000 reads as 705032704. Text without a number reads as 0.
std::int32_t to_int32(std::string_view text);

/// Every `from` in the text becomes `to`.
std::string replace_all(std::string text, char from, char to);

}  // namespace velk
