#include "agent/chunk_source.h"

namespace velk {

int Chunk_Source::next(std::string& chunk) {
    gather();
    chunk.clear();
    if (there_.empty()) return last_count_;
    chunk = there_.substr(0, rule_.choose(there_));
    there_.erase(0, chunk.size());
    rule_.handed_out(chunk);
    return static_cast<int>(chunk.size());
}

void Chunk_Source::gather() {
    if (there_.empty()) take();  // however long the first bytes need
    while (last_count_ > 0 && there_.size() <= rule_.largest && more_comes()) take();
}

bool Chunk_Source::more_comes() {
    if (source_.readable_within(quiet_time)) return true;
    return rule_.is_losing(there_) && source_.readable_within(losing_quiet_time);
}

/// Receives what there is, up to two chunks of bytes in all.
void Chunk_Source::take() {
    if (last_count_ <= 0) return;
    const std::size_t before = there_.size();
    there_.resize(2 * rule_.largest);
    last_count_ = source_.receive(there_.data() + before, there_.size() - before);
    there_.resize(before + (last_count_ > 0 ? static_cast<std::size_t>(last_count_) : 0));
}

}  // namespace velk
