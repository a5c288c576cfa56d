#include "ui/table.h"

#include <gtest/gtest.h>

#include <array>

namespace velk {
namespace {

using Texts = std::vector<std::string>;

struct Song {
    std::string col_no, col_name;

    static const std::array<Row_Column<Song>, 2>& row_columns() {
        static const std::array<Row_Column<Song>, 2> columns{
            {{{"col_no", "No", Comparison::number}, &Song::col_no},
             {{"col_name", "Name"}, &Song::col_name}}};
        return columns;
    }
};

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

TEST(Table, AClickSortsTheRowsThemselvesAndLaterRowsStayAtTheEnd) {
    Row_List<Song> rows;
    rows.push_back({"1", "b"});
    rows.push_back({"2", "a"});
    Table table("m_table", rows);
    table.select({0}, 0);
    table.sort(1, true);
    EXPECT_EQ(table.selected_row(), -1);
    rows.push_back({"3", "A"});
    table.reload_appended();
    EXPECT_EQ(table.reloads(), 1);
    rows.set_cell(1, 1, "edited");
    Texts cells;
    for (const Song& song : rows) cells.push_back(song.col_no + song.col_name);
    EXPECT_EQ(cells, (Texts{"2a", "1edited", "3A"}));
}

TEST(Table, TheSelectionTellsOnlyOfChanges) {
    Row_List<Song> rows;
    Table table("m_table", rows);
    int changes = 0;
    table.on_selection([&] { ++changes; });
    table.select({1, 3}, 1);
    EXPECT_EQ(table.selected_row(), 1);
    table.select({1, 3}, 1);
    EXPECT_EQ(changes, 1);
    table.select({}, -1);
    EXPECT_EQ(changes, 2);
    table.reload();
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace velk
