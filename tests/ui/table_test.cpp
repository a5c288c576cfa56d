#include "ui/table.h"

#include <gtest/gtest.h>

#include <array>

namespace velk {
namespace {

struct Song {
    std::string col_no, col_name, col_size;

    static const std::array<Row_Column<Song>, 3>& row_columns() {
        static const std::array<Row_Column<Song>, 3> columns{
            {{{"col_no", "No", Comparison::number}, &Song::col_no},
             {{"col_name", "Name"}, &Song::col_name},
             {{"col_size", "Size", Comparison::size}, &Song::col_size}}};
        return columns;
    }
};

std::vector<std::string> cells_of(const Row_List<Song>& rows, int column) {
    std::vector<std::string> cells;
    for (int row = 0; row < rows.count(); ++row) cells.push_back(rows.cell(row, column));
    return cells;
}

/// The cells in the order that a click on their header gives.
std::vector<std::string> sorted(const std::vector<std::string>& cells, Comparison comparison,
                                bool ascending = true) {
    std::vector<std::string> result;
    for (const int place : sorted_order(cells, comparison, ascending))
        result.push_back(cells[static_cast<std::size_t>(place)]);
    return result;
}

using Texts = std::vector<std::string>;

TEST(Table, ColumnsCompareAsWhatTheyAre) {
    EXPECT_EQ(sorted({"10", "9", "", "-1", "100"}, Comparison::number),
              (Texts{"-1", "", "9", "10", "100"}));
    EXPECT_EQ(sorted({"1.50 GB", "900.00 B", "2.00 KB", "1.00 MB", "1024.00 B"}, Comparison::size),
              (Texts{"900.00 B", "1024.00 B", "2.00 KB", "1.00 MB", "1.50 GB"}));
    EXPECT_EQ(sorted({"2.86MB", "0B", "1.50GB"}, Comparison::size),
              (Texts{"0B", "2.86MB", "1.50GB"}));
    EXPECT_EQ(sorted({"2", "nan", "1", "nan", "-1"}, Comparison::number),
              (Texts{"-1", "nan", "nan", "1", "2"}));
    EXPECT_EQ(sorted({"1", "3", "2"}, Comparison::number, false), (Texts{"3", "2", "1"}));
}

TEST(Table, EqualCellsKeepTheirOrderBothWays) {
    const Texts cells{"1 b", "1 a", "0", "1 c"};
    EXPECT_EQ(sorted(cells, Comparison::number), (Texts{"0", "1 b", "1 a", "1 c"}));
    EXPECT_EQ(sorted(cells, Comparison::number, false), (Texts{"1 b", "1 a", "1 c", "0"}));
}

TEST(Table, AClickSortsTheRowsThemselvesAndLaterRowsStayAtTheEnd) {
    Row_List<Song> rows;
    rows.push_back({"1", "b", "2.00 KB"});
    rows.push_back({"2", "a", "1.00 KB"});
    Table table("m_table", rows);
    table.select({0}, 0);
    table.sort(1, true);
    EXPECT_EQ(table.selected_row(), -1);
    EXPECT_EQ(table.reloads(), 1);
    rows.push_back({"3", "A", "0.00 B"});
    table.reload_appended();
    EXPECT_EQ(table.reloads(), 1);
    EXPECT_EQ(cells_of(rows, 0), (Texts{"2", "1", "3"}));
    rows.set_cell(1, 1, "B");
    EXPECT_EQ(cells_of(rows, 1), (Texts{"a", "B", "A"}));
    EXPECT_EQ(cells_of(rows, 2), (Texts{"1.00 KB", "2.00 KB", "0.00 B"}));
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
