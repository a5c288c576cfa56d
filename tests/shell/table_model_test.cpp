#include "shell/table_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "managers/app_rows.h"
#include "managers/file_rows.h"
#include "window_test.h"

namespace velk {
namespace {

struct Row {
    std::string no, secret, name;
    static const std::array<Row_Column<Row>, 3>& row_columns() {
        static const std::array<Row_Column<Row>, 3> columns = {
            {{{.identifier = "no", .title = "No.", .comparison = Comparison::number}, &Row::no},
             {{.identifier = "secret", .title = "Secret", .hidden = true}, &Row::secret},
             {{.identifier = "name", .title = "Name"}, &Row::name}}};
        return columns;
    }
};

class Table_Model_Test : public testing::Test {
  protected:
    void append(int count) {
        for (int i = 0; i < count; ++i) {
            rows.push_back({std::to_string(rows.size()), "hidden", "name"});
            table.reload_appended();
        }
    }

    QApplication& application = test_application();
    Row_List<Row> rows;
    Table table{"table", rows};
    Table_Model model{table};
    // Its complaints are warnings, which fail the test.
    QAbstractItemModelTester tester{&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(Table_Model_Test, tells_of_many_appended_rows_in_one_insertion) {
    QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    append(3);
    model.catch_up();
    append(500);
    EXPECT_EQ(model.rowCount(), 3);
    model.catch_up();
    EXPECT_EQ(model.rowCount(), 503);
    EXPECT_EQ(insertions.count(), 2);
}

TEST_F(Table_Model_Test, does_not_read_rows_it_has_not_told_of_nor_rows_that_are_gone) {
    append(5);
    model.catch_up();
    append(1);
    EXPECT_FALSE(model.index(5, 0).isValid());
    const QModelIndex last = model.index(4, 0);
    rows.clear();
    EXPECT_FALSE(model.data(last, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.setData(last, "x", Qt::EditRole));
}

TEST_F(Table_Model_Test, lets_nobody_write_what_a_command_goes_by) {
    const auto writable = [](Table_Rows& listed) {
        Table shown{"shown", listed};
        const Table_Model its_model{shown};
        QStringList titles;
        for (int column = 0; column < its_model.columnCount(); ++column)
            if (its_model.flags(its_model.index(0, column)) & Qt::ItemIsEditable)
                titles << its_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        return titles.join(u' ').toStdString();
    };
    Row_List<App_TableSource_Column> apps;
    apps.push_back({"1", "Moss", "a.moss", "1 KB", "1.0"});
    EXPECT_EQ(writable(apps), "Name Version");
    Row_List<Photo_TableSource_Column> photos;
    photos.push_back({"1", "7", "/p/a.jpg", "1 KB"});
    EXPECT_EQ(writable(photos), "");
}

TEST_F(Table_Model_Test, takes_in_what_comes_while_something_is_searched_for) {
    append(2);
    rows.push_back({"2", "hidden", "Zoë"});
    model.search(Search_Term("zoe"));
    append(1);
    rows.push_back({"4", "hidden", "ZOË"});
    model.catch_up();
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(1, 0).data(), "4");
    EXPECT_TRUE(model.setData(model.index(0, 1), "Zoe", Qt::EditRole));
    EXPECT_EQ(rows[2].name + rows[2].secret, "Zoehidden");
    table.editable = false;
    EXPECT_FALSE(model.flags(model.index(0, 1)) & Qt::ItemIsEditable);
    rows.clear();
    append(5);  // as many as there were
    table.reload();
    model.catch_up();
    EXPECT_EQ(model.rowCount(), 0);
    model.search({});
    EXPECT_EQ(model.rowCount(), 5);
}

TEST(Search_Term, finds_letters_whatever_their_case_and_accents) {
    const std::pair<const char*, const char*> found[] = {{" LINDQ ", "Ada Lindqvist"},
                                                         {"jose nunez", "José Ñuñez"},
                                                         {"Ñ", "nunez"},
                                                         {"петр", "Анна ПЕТРОВА"},
                                                         {"ö", "o\u0308"},
                                                         {"محمد", "مُحَمَّد"},
                                                         {"ok", "\U0001F642 ok \xff"}};
    for (const auto& [typed, text] : found)
        EXPECT_TRUE(Search_Term(QString::fromUtf8(typed)).is_in(text)) << typed;
    EXPECT_FALSE(Search_Term(QString::fromUtf8("小雨")).is_in("林小雪"));
}

}  // namespace
}  // namespace velk
