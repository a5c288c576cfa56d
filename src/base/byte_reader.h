// A view of bytes that shrinks as it is read: it hands out and advances, or says no and nothing
// has moved. No read outside the bytes is possible.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace velk {

class Byte_Reader {
  public:
    explicit Byte_Reader(std::string_view bytes) : rest_(bytes) {}

    std::string_view rest() const { return rest_; }
    bool empty() const { return rest_.empty(); }

    /// Exactly `count` bytes, or nothing when fewer are left.
    std::optional<std::string_view> take(std::size_t count) {
        if (count > rest_.size()) return std::nullopt;
        return take_at_most(count);
    }

    /// `count` bytes, or what is left when that is less.
    std::string_view take_at_most(std::size_t count) {
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }

  private:
    std::string_view rest_;
};

}  // namespace velk
