// The cuts of a list whose records follow each other through all chunks, whatever their fields.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "agent/chunk_source.h"

namespace velk {

/// A run of a list's bytes that belongs together: a record, or a header between records.
struct Stretch {
    std::size_t length;  // at least 1
    /// A cut behind this many of its bytes, or more of them, loses: 1 for all of them, its length
    /// for its very end.
    std::size_t losing_from;
};

/// For a stretch that may be cut at its end and wherever it has bytes enough to come.
inline constexpr std::size_t never_losing = std::numeric_limits<std::size_t>::max();

/// Reads the stretch at the head of `bytes`, which may be cut anywhere: length fields that are not
/// there count as 0 (bytes.h), which gives the least it can be.
using Stretch_At = Stretch (*)(std::string_view bytes);

/// All records hold: a cut also loses where fewer than 8 bytes of a record are still to come, and
/// where the chunk would have fewer than 8.
class Record_Places : public Cut_Rule {
  public:
    /// `header` bytes open the reply.
    Record_Places(std::size_t largest_chunk, std::size_t header, Stretch_At stretch_at)
        : Cut_Rule(largest_chunk), header_(header), stretch_at_(stretch_at) {}

    bool is_losing(std::string_view there) const override;
    std::size_t choose(std::string_view there) const override;
    void handed_out(std::string_view chunk) override;

  private:
    Stretch stretch(std::string_view bytes, std::size_t header) const;
    std::size_t last_safe_place(std::string_view there, std::size_t limit) const;

    std::size_t header_;  // 0 once it has been handed out whole
    Stretch_At stretch_at_;
    std::string begun_;  // the part handed out of a stretch that is not whole yet
};

}  // namespace velk
