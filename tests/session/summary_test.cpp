#include "session/device_summary.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(Device_Summary, fills_the_battery_gauge_in_five_steps) {
    for (const auto& [per_cent, steps] : {std::pair("100", 5), std::pair("15", 1),
                                          std::pair("0", 1), std::pair("", 1), std::pair("-56", 1)})
        EXPECT_EQ(battery_steps(per_cent), steps) << per_cent;
}

TEST(Device_Summary, draws_a_gauge_empty_when_its_quotient_is_no_number) {
    EXPECT_EQ(storage_gauge(2, 1), 66);
    EXPECT_EQ(storage_gauge(0, 0), gauge_without_value);
    EXPECT_EQ(storage_gauge(2147483647, -2147483646), gauge_without_value);
}

TEST(Device_Summary, tells_the_exact_bytes_of_sizes_that_32_bits_cannot_hold) {
    for (const auto& [reported, shown] :
         {std::pair("5000000000", "5,000,000,000 bytes"), std::pair("999", "999 bytes"),
          std::pair("-1234", "-1,234 bytes"), std::pair(" +1234x", "1,234 bytes"),
          std::pair("-", ""), std::pair("", "")})
        EXPECT_EQ(exact_bytes(reported), shown) << reported;
}

}  // namespace
}  // namespace velk
