// The lines of a reply, one after the other, whatever pieces the network delivers.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "agent/chunk_source.h"

namespace velk {

/// The longest line of the second wire, in bytes (about: what comes together is taken together):
/// room for a contact with its picture.
inline constexpr std::size_t longest_line = std::size_t{8} << 20;

/// Blocks as its source does. Holds one line, and what came together with it.
class Line_Reader {
  public:
    using Clock = std::chrono::steady_clock;

    /// Nothing is waited for after `latest`, when it is given.
    explicit Line_Reader(Byte_Source& source, std::optional<Clock::time_point> latest = {})
        : source_(source), latest_(latest) {}

    /// The next line without its line break, valid until the next call. Nothing when the source has
    /// ended, failed or run out of time, or when the line is too long; bytes without a line break
    /// at the end are no line.
    std::optional<std::string_view> next();

    /// True when next() gave nothing because of a line that is too long.
    bool found_too_long() const { return too_long_; }

  private:
    bool receive_more();

    Byte_Source& source_;
    std::optional<Clock::time_point> latest_;
    std::string received_;
    std::size_t start_ = 0;  // of the next line in received_
    bool too_long_ = false;
};

}  // namespace velk
