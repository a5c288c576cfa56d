#include "agent/contact_replies.h"

#include <gtest/gtest.h>

#include "agent/scripted_source.h"

namespace velk {
namespace {

/// A reply whose length field tells `told`, with as many bytes as `size`.
std::string reply(std::size_t size, std::size_t told) {
    std::string bytes(size, 'c');
    for (std::size_t i = 0; i < 4; ++i) bytes[2 + i] = static_cast<char>(told >> (24 - 8 * i));
    return bytes;
}
std::string reply(std::size_t size) {
    return reply(size, size - 6);
}

TEST(ContactReplies, OneReplyIsOneChunkThroughEveryPauseThatIsShortEnough) {
    const std::string whole = reply(600);
    std::vector<Arrival> script;
    for (const char byte : whole) script.push_back({{byte}, 65});
    Contact_Replies rule;
    EXPECT_EQ(chunks_of(script, rule), std::vector<std::string>{whole});
}

TEST(ContactReplies, WhatFollowsAReplyIsAChunkOfItsOwnAndOneThatIsTooLongIsCountedOff) {
    const std::string first = reply(largest_contacts_chunk), second = reply(300);
    Contact_Replies rule;
    EXPECT_EQ(chunks_of({{first + second}}, rule), (std::vector<std::string>{first, second}));
    EXPECT_FALSE(rule.too_long());
    EXPECT_EQ(lengths(chunks_of({{reply(largest_contacts_chunk + 500) + second}}, rule)),
              (std::vector<std::size_t>{largest_contacts_chunk, 500, 300}));
    EXPECT_TRUE(rule.too_long());
}

TEST(ContactReplies, NoPieceOfALongReplyPassesTheParsersCheck) {
    // The check sees the low 16 bits only, so that the first full chunk looks like a whole reply.
    std::string long_reply = reply(largest_contacts_chunk + 65536);
    // And so would the second, which begins one byte earlier than a full chunk later.
    long_reply.replace(largest_contacts_chunk - 1, 6, reply(6, largest_contacts_chunk - 6));
    Contact_Replies rule;
    const std::vector<std::string> chunks = chunks_of({{long_reply}}, rule);
    EXPECT_EQ(lengths(chunks),
              (std::vector<std::size_t>{largest_contacts_chunk - 1, largest_contacts_chunk - 1,
                                        65536 - largest_contacts_chunk + 2}));
    for (const std::string& chunk : chunks) EXPECT_FALSE(passes_as_reply(chunk));
}

TEST(ContactReplies, TheRestOfAReplyBehindALongPauseIsNeverTheStartOfAnother) {
    const std::string broken = reply(500), next = reply(300);
    // The rest looks like a reply of its own.
    const std::string rest = reply(200);
    Contact_Replies rule;
    const auto chunks = chunks_of({{broken.substr(0, 300)}, {rest + next, 100}}, rule);
    ASSERT_EQ(lengths(chunks), (std::vector<std::size_t>{300, 199, 1, 300}));
    EXPECT_FALSE(passes_as_reply(chunks[1]));
    EXPECT_EQ(chunks[3], next);
    EXPECT_FALSE(rule.too_long());
}

}  // namespace
}  // namespace velk
