// The cuts of the contacts list, whose parser takes one whole reply or nothing.
#pragma once

#include <cstdint>
#include <string_view>

#include "agent/chunk_source.h"

namespace velk {

inline constexpr std::size_t largest_contacts_chunk = 40960;

/// The parser's check: true when the length that `chunk` tells is its own.
bool passes_as_reply(std::string_view chunk);

/// One whole reply is one chunk, whatever follows it. A reply that does not fit, or of which a part
/// went out after a pause, is counted off in pieces that the parser does not take for a reply.
class Contact_Replies : public Cut_Rule {
  public:
    Contact_Replies() : Cut_Rule(largest_contacts_chunk) {}

    bool is_losing(std::string_view there) const override;
    std::size_t choose(std::string_view there) const override;
    void handed_out(std::string_view chunk) override;

    /// True when a reply was longer than a chunk can be: none of its contacts can be read.
    bool too_long() const { return too_long_; }

  private:
    std::uint64_t still_to_come(std::string_view there) const;

    std::uint64_t owed_ = 0;  // bytes to come of a reply of which a part went out
    bool too_long_ = false;
};

}  // namespace velk
