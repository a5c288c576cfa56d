#include "agent/record_places.h"

#include <algorithm>

namespace velk {

namespace {

/// The last place that is safe behind at most `limit` bytes of the stretch; 0 when none is.
std::size_t last_safe(const Stretch& stretch, std::size_t limit) {
    if (stretch.length <= limit && stretch.losing_from > stretch.length) return stretch.length;
    const std::size_t enough_to_come = stretch.length - std::min(stretch.length, smallest_chunk);
    return std::min({limit, stretch.losing_from - 1, enough_to_come});
}

}  // namespace

bool Record_Places::is_losing(std::string_view there) const {
    return last_safe_place(there, there.size()) != there.size();
}

std::size_t Record_Places::choose(std::string_view there) const {
    if (there.size() <= largest) return there.size();
    const std::size_t limit =
        std::min(largest, there.size() - std::min(there.size(), smallest_chunk));
    const std::size_t place = last_safe_place(there, limit);
    return place > 0 ? place : largest;
}

void Record_Places::handed_out(std::string_view chunk) {
    begun_ += chunk;
    std::size_t whole = 0;
    for (;;) {
        const std::size_t length = stretch(std::string_view(begun_).substr(whole), header_).length;
        if (length > begun_.size() - whole) break;
        whole += length;
        header_ = 0;
    }
    begun_.erase(0, whole);
}

/// The header when there is one to come, else what the list's own rule says.
Stretch Record_Places::stretch(std::string_view bytes, std::size_t header) const {
    return header > 0 ? Stretch{header, 1} : stretch_at_(bytes);
}

/// The last safe place behind at most `limit` bytes of `there`; 0 when none is.
std::size_t Record_Places::last_safe_place(std::string_view there, std::size_t limit) const {
    const std::string bytes = begun_ + std::string(there);
    const std::size_t end = begun_.size() + limit;
    std::size_t place = 0;
    std::size_t header = header_;
    for (std::size_t start = 0; start < end; header = 0) {
        const Stretch next = stretch(std::string_view(bytes).substr(start), header);
        const std::size_t safe = last_safe(next, end - start);
        if (safe > 0) place = start + safe;
        start += next.length;
    }
    return place >= begun_.size() + smallest_chunk ? place - begun_.size() : 0;
}

}  // namespace velk
