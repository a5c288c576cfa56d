#include "ui/table.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

using Texts = std::vector<std::string>;

/// The cells in the order that a click on their header gives.
std::vector<std::string> sorted(const std::vector<std::string>& cells, Comparison comparison,
                                bool ascending = true) {
    std::vector<std::string> result;
    for (const int place : sorted_order(cells, comparison, ascending))
        result.push_back(cells[static_cast<std::size_t>(place)]);
    return result;
}

TEST(Table, ColumnsCompareAsWhatTheyAreAndEqualCellsKeepTheirOrderBothWays) {
    EXPECT_EQ(sorted({"10", "9", "", "-1", "100"}, Comparison::number),
              (Texts{"-1", "", "9", "10", "100"}));
    EXPECT_EQ(sorted({"1.50GB", "900.00 B", "2.00 KB", "1.00 MB", "0B"}, Comparison::size),
              (Texts{"0B", "900.00 B", "2.00 KB", "1.00 MB", "1.50GB"}));
    EXPECT_EQ(sorted({"2", "nan", "1", "nan", "-1"}, Comparison::number),
              (Texts{"-1", "nan", "nan", "1", "2"}));
    const Texts cells{"1 b", "1 a", "0", "1 c"};
    EXPECT_EQ(sorted(cells, Comparison::number), (Texts{"0", "1 b", "1 a", "1 c"}));
    EXPECT_EQ(sorted(cells, Comparison::number, false), (Texts{"1 b", "1 a", "1 c", "0"}));
}

}  // namespace
}  // namespace velk
