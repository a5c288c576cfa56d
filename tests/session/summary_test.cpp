#include "session/device_summary.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(Device_Summary, fills_the_battery_gauge_in_five_steps) {
    const std::pair<const char*, int> cases[] = {{"100", 5}, {"85", 4}, {"15", 1}, {"9", 1},
                                                 {"0", 1},   {"", 1},   {"-56", 1}};
    for (const auto& [per_cent, steps] : cases)
        EXPECT_EQ(battery_steps(per_cent), steps) << per_cent;
}

TEST(Device_Summary, draws_a_gauge_empty_when_its_quotient_is_no_number) {
    EXPECT_EQ(storage_gauge(3000000, 1000000), 75);
    EXPECT_EQ(storage_gauge(2, 1), 66);
    EXPECT_EQ(storage_gauge(0, 0), gauge_without_value);
    EXPECT_EQ(storage_gauge(5, -5), gauge_without_value);
    EXPECT_EQ(storage_gauge(2147483647, -2147483646), gauge_without_value);
}

TEST(Device_Summary, tells_the_exact_bytes_of_sizes_that_32_bits_cannot_hold) {
    const std::pair<const char*, const char*> cases[] = {{"5000000000", "5,000,000,000 bytes"},
                                                         {"999", "999 bytes"},
                                                         {"1000", "1,000 bytes"},
                                                         {"-1234", "-1,234 bytes"},
                                                         {"12x", "12 bytes"},
                                                         {"", ""},
                                                         {" +1234", "1,234 bytes"},
                                                         {"-", ""},
                                                         {"x", ""}};
    for (const auto& [reported, shown] : cases) EXPECT_EQ(exact_bytes(reported), shown) << reported;
}

}  // namespace
}  // namespace velk
