#include "agent/line_reader.h"

#include <algorithm>

namespace velk {

namespace {

constexpr std::size_t bytes_at_once = 65536;

}  // namespace

std::optional<std::string_view> Line_Reader::next() {
    std::size_t searched = start_;
    for (;;) {
        const std::size_t end = received_.find('\n', searched);
        if (end != std::string::npos) {
            const std::string_view line = std::string_view(received_).substr(start_, end - start_);
            start_ = end + 1;
            return line;
        }
        received_.erase(0, start_);
        start_ = 0;
        searched = received_.size();
        too_long_ = received_.size() > longest_line;
        if (too_long_ || !receive_more()) return {};
    }
}

bool Line_Reader::receive_more() {
    if (latest_) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*latest_ - Clock::now());
        if (left.count() <= 0 || !source_.readable_within(left)) return false;
    }
    const std::size_t before = received_.size();
    received_.resize(before + bytes_at_once);
    const int count = source_.receive(received_.data() + before, bytes_at_once);
    received_.resize(before + static_cast<std::size_t>(std::max(count, 0)));
    return count > 0;
}

}  // namespace velk
