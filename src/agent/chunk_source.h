// Where one chunk of a list's reply ends and the next begins.
//
// The list loops take a reply in chunks, and their rules make some cuts lose data: a cut in a
// record's last text looks like the list's end, a contacts reply in two chunks yields nothing.
// Where the network happens to cut is no good place, so bytes are gathered here as they come and
// handed out at a place that is safe for the list, as far as one is there.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace velk {

/// A chunk of fewer bytes ends every list.
inline constexpr std::size_t smallest_chunk = 8;

/// Behind the last bytes that came: how long more are waited for, and how long once more when the
/// list would lose data by a cut right there.
inline constexpr std::chrono::milliseconds quiet_time{10};
inline constexpr std::chrono::milliseconds losing_quiet_time{60};

/// What the bytes come from.
class Byte_Source {
  public:
    virtual ~Byte_Source() = default;
    /// True when there is something to receive, be it the end.
    virtual bool readable_within(std::chrono::milliseconds time) = 0;
    /// Waits for bytes and gives their number, 0 at the end, -1 on an error.
    virtual int receive(char* bytes, std::size_t most) = 0;
};

/// What one kind of list says about its places. Told of every chunk that is handed out.
class Cut_Rule {
  public:
    explicit Cut_Rule(std::size_t largest_chunk) : largest(largest_chunk) {}
    virtual ~Cut_Rule() = default;

    /// True when the list loses by a cut behind all of `there`, the bytes not handed out yet.
    virtual bool is_losing(std::string_view there) const = 0;
    /// How many bytes of `there` (never empty) make the next chunk: from 1 to `largest`.
    virtual std::size_t choose(std::string_view there) const = 0;
    virtual void handed_out(std::string_view chunk) = 0;

    const std::size_t largest;
};

/// One list's reply. Blocks as its source does.
class Chunk_Source {
  public:
    Chunk_Source(Byte_Source& source, Cut_Rule& rule) : source_(source), rule_(rule) {}

    /// Replaces `chunk` by the next one and gives its length; 0 at the end, -1 after an error.
    int next(std::string& chunk);

  private:
    void gather();
    bool more_comes();
    void take();

    Byte_Source& source_;
    Cut_Rule& rule_;
    std::string there_;  // received, not handed out
    int last_count_ = 1;
};

}  // namespace velk
