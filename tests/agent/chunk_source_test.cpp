#include "agent/chunk_source.h"

#include <gtest/gtest.h>

#include "agent/record_places.h"
#include "agent/scripted_source.h"

namespace velk {
namespace {

// Records of 20 bytes behind a header of 7, which lose by a cut behind 15 of them or more.
Stretch fixed_record(std::string_view) {
    return {20, 15};
}
constexpr std::size_t header = 7;
constexpr std::size_t largest = 100;

std::string reply_of(std::size_t records) {
    return std::string(header + 20 * records, 'r');
}

/// The reply in two arrivals, cut at `place`, `after` milliseconds apart.
std::vector<Arrival> cut_at(std::size_t place, int after, const std::string& reply) {
    return {{reply.substr(0, place)}, {reply.substr(place), after}};
}

TEST(ChunkSource, APauseIsWaitedOutOnlyWhereTheListWouldLose) {
    const struct {
        const char* what;
        std::size_t place;
        int after;
        std::vector<std::size_t> expected;
    } cases[] = {
        {"short pause", header + 23, 9, {47}},
        {"a safe place", header + 23, 11, {30, 17}},
        {"the last place that is safe", header + 32, 11, {39, 8}},
        {"fewer than 8 bytes to come", header + 33, 69, {47}},
        {"at a losing end", header + 20, 69, {47}},
        {"right behind the header", header, 69, {47}},
        {"a losing place, but too long a pause", header + 18, 71, {25, 22}},
        {"fewer than 8 bytes, and too long a pause", 7, 71, {7, 40}},
    };
    for (const auto& each : cases) {
        Record_Places rule(largest, header, fixed_record);
        EXPECT_EQ(lengths(chunks_of(cut_at(each.place, each.after, reply_of(2)), rule)),
                  each.expected)
            << each.what;
    }
}

TEST(ChunkSource, WhenMoreThanAChunkIsThereItEndsAtTheLastSafePlace) {
    const Stretch_At too_long = [](std::string_view) { return Stretch{500, 1}; };
    // Inside a record of 10 only 1 and 2 bytes leave 8 to come; its end is the safe place.
    const Stretch_At cut_at_its_end = [](std::string_view) { return Stretch{10, never_losing}; };
    const struct {
        const char* what;
        Stretch_At record;
        std::size_t length;
        std::vector<std::size_t> expected;
    } cases[] = {
        {"exactly one chunk", fixed_record, 100, {100}},
        {"leaves 8 bytes behind", fixed_record, 105, {97, 8}},
        {"keeps away from where records lose", fixed_record, header + 160, {99, 68}},
        {"no place is safe", too_long, header + 400, {100, 100, 100, 100, 7}},
        {"an end that is safe", cut_at_its_end, header + 100, {99, 8}},
    };
    for (const auto& each : cases) {
        Record_Places rule(largest, header, each.record);
        EXPECT_EQ(lengths(chunks_of({{std::string(each.length, 'r')}}, rule)), each.expected)
            << each.what;
    }
}

}  // namespace
}  // namespace velk
