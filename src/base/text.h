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

/// The bytes as well-formed UTF-8: every ill-formed piece becomes U+FFFD.
std::string as_utf8(std::string_view bytes);

/// Takes the first character off the text, which is not empty. An ill-formed piece is U+FFFD.
char32_t take_character(std::string_view& text);

/// The text's length in UTF-16 code units. An ill-formed piece counts as the U+FFFD it is shown as.
int utf16_length(std::string_view utf8);

/// True when `what` occurs in the text, in whatever case, character by character ("ß" is not "ss").
/// An empty `what` never occurs.
bool contains_ignoring_case(std::string_view text, std::string_view what);

/// The decimal number a text starts with (blanks and a sign may lead it), wrapped to 32 bits as the
/// phone's agent counts: 5000000000 reads as 705032704. Text without a number reads as 0.
std::int32_t to_int32(std::string_view text);

/// Every `from` in the text becomes `to`.
std::string replace_all(std::string text, char from, char to);
std::string replace_all(std::string text, std::string_view from, std::string_view to);

}  // namespace velk
