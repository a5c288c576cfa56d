#include "base/byte_reader.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(ByteReader, ARefusedReadLeavesEverythingWhereItWas) {
    Byte_Reader reader("abcde");
    EXPECT_EQ(reader.take(2), "ab");
    EXPECT_EQ(reader.take(4), std::nullopt);
    EXPECT_EQ(reader.rest(), "cde");
    EXPECT_EQ(reader.take(3), "cde");
    EXPECT_TRUE(reader.empty());
    EXPECT_EQ(reader.take(0), "");
    EXPECT_EQ(reader.take(1), std::nullopt);
}

TEST(ByteReader, AClampedReadStopsAtTheEnd) {
    Byte_Reader reader("abc");
    EXPECT_EQ(reader.take_at_most(2), "ab");
    EXPECT_EQ(reader.take_at_most(65535), "c");
    EXPECT_EQ(reader.take_at_most(1), "");
}

}  // namespace
}  // namespace velk
