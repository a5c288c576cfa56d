#include "agent/contact_replies.h"

#include <algorithm>
#include <limits>

#include "agent/bytes.h"

namespace velk {

namespace {

constexpr std::size_t length_place = 2;   // of a reply's own length, four bytes
constexpr std::size_t length_behind = 6;  // it counts the bytes from here
constexpr std::uint64_t not_known = std::numeric_limits<std::uint64_t>::max();

/// The length of the reply that `bytes` start, by all four bytes of its length field.
std::uint64_t reply_length(std::string_view bytes) {
    if (bytes.size() < length_behind) return not_known;
    std::uint64_t length = 0;
    for (const char byte : bytes.substr(length_place, 4))
        length = length << 8 | static_cast<unsigned char>(byte);
    return length + length_behind;
}

}  // namespace

bool passes_as_reply(std::string_view chunk) {
    return length_at(chunk, length_place) + length_behind == chunk.size();
}

std::uint64_t Contact_Replies::still_to_come(std::string_view there) const {
    return owed_ > 0 ? owed_ : reply_length(there);
}

bool Contact_Replies::is_losing(std::string_view there) const {
    return there.size() < still_to_come(there);
}

std::size_t Contact_Replies::choose(std::string_view there) const {
    const std::uint64_t to_come = still_to_come(there);
    const auto size =
        static_cast<std::size_t>(std::min<std::uint64_t>({there.size(), largest, to_come}));
    const bool whole_reply = owed_ == 0 && size == to_come;
    return !whole_reply && passes_as_reply(there.substr(0, size)) ? size - 1 : size;
}

void Contact_Replies::handed_out(std::string_view chunk) {
    const std::uint64_t to_come = still_to_come(chunk);
    if (owed_ == 0 && to_come != not_known && to_come > largest) too_long_ = true;
    owed_ = to_come - chunk.size();
}

}  // namespace velk
