#include "agent/chunk_source.h"

#include <gtest/gtest.h>

#include <random>

#include "agent/bytes.h"
#include "agent/carried_list.h"
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

TEST(ChunkSource, AnErrorComesBehindWhatWasReceived) {
    class Broken : public Byte_Source {
      public:
        bool readable_within(std::chrono::milliseconds) override { return true; }
        int receive(char* bytes, std::size_t) override {
            if (std::exchange(received_, true)) return -1;
            std::fill_n(bytes, 20, 'r');
            return 20;
        }

      private:
        bool received_ = false;
    } source;
    Record_Places rule(largest, header, fixed_record);
    Chunk_Source chunks(source, rule);
    std::string chunk;
    EXPECT_EQ(chunks.next(chunk), 20);
    EXPECT_EQ(chunks.next(chunk), -1);
    EXPECT_TRUE(chunk.empty());
}

// A list with texts, as a phone's are: a number and two texts, of which the last is taken short
// when it is cut, and which ends with the first chunk that ends where a record seems to.
Stretch record_with_texts(std::string_view bytes) {
    const std::size_t last_text = behind_text(bytes, 4);
    return {behind_text(bytes, last_text), last_text + 4};
}

TEST(ChunkSource, AListOfTextsComesInWholeHoweverTheNetworkCutsIt) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::size_t end) { return random() % end; };
        const auto text = [&](std::size_t most) {
            const std::size_t length = below(most);
            return std::string{'\0', '\0', static_cast<char>(length >> 8),
                               static_cast<char>(length)} +
                   std::string(length, 't');
        };
        std::string reply(header, 'h');
        const std::size_t records = 200 + below(200);
        for (std::size_t i = 0; i < records; ++i) reply += "\1\1\1\1" + text(120) + text(40);

        std::vector<Arrival> script;
        for (std::size_t place = 0; place < reply.size();) {
            const std::size_t piece = 1 + below(seed % 2 == 0 ? 4096 : 200);
            script.push_back({reply.substr(place, piece), static_cast<int>(below(10))});
            place += piece;
        }
        Record_Places rule(4096, header, record_with_texts);
        Scripted_Source source(script);
        std::size_t arrived = 0;
        const auto parse = [&arrived](const std::string& bytes, int start) {
            for (auto place = static_cast<std::size_t>(start); place < bytes.size();) {
                const std::string_view rest = std::string_view(bytes).substr(place);
                const Stretch record = record_with_texts(rest);
                if (record.losing_from > rest.size()) return std::string(rest);
                if (record.length <= rest.size()) ++arrived;
                place += record.length;
            }
            return std::string();
        };
        read_carried_over(source, rule, parse,
                          [](const std::string& left) { return left.empty(); });
        EXPECT_EQ(arrived, records) << "seed " << seed;
    }
}

}  // namespace
}  // namespace velk
