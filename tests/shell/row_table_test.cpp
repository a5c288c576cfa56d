#include "shell/row_table.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>

#include "managers/contacts_tablesource.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

class Row_Table_Test : public testing::Test {
  protected:
    Row_Table_Test() {
        open.connect();
        open.click("m_BT_Contacts");
        for (const char* name : {"Berta", "Adam", "Cäsar"}) append(name);
        open.turn();
        view = open.find<QTableView>("m_table_Contacts");
        view->setFocus();
    }

    void append(const std::string& name) {
        const std::string number = std::to_string(contacts.table_rows.size() + 1);
        contacts.table_rows.push_back({number, "9" + number, name, "555-" + number});
        contacts.m_table.reload_appended();
        contacts.m_table.scroll_to_last();
    }
    void click_cell(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        const QRect cell = view->visualRect(view->model()->index(row, 2));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, keys, cell.center());
    }
    void click_header(int column) {
        QHeaderView* const header = view->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(column) + 20, 8));
    }
    void search(const char* typed) {
        QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(open.window->focusWidget(), typed);
    }
    std::string seen() const {
        QStringList all;
        for (int row = 0; row < view->model()->rowCount(); ++row)
            all << view->model()->index(row, 2).data().toString();
        return all.join(' ').toStdString();
    }
    std::string names() const {
        std::string all;
        for (const auto& row : contacts.table_rows) all += row.col_name + " ";
        return all;
    }

    Open_Window open;
    Contacts_TableSource& contacts = *g_contacts_tablesource;
    QTableView* view = nullptr;
};

TEST_F(Row_Table_Test, reports_the_selection_and_which_row_was_selected_last) {
    click_cell(2);
    click_cell(0, Qt::ControlModifier);
    EXPECT_EQ(contacts.m_table.selected_rows(), (std::vector<int>{0, 2}));
    EXPECT_EQ(contacts.selected_row, 0);
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(contacts.m_table.selected_rows().size(), 3U);
    click_cell(0, Qt::ControlModifier);
    EXPECT_EQ(contacts.m_table.selected_rows(), (std::vector<int>{1, 2}));
}

TEST_F(Row_Table_Test, forgets_a_selection_of_rows_that_were_replaced) {
    click_cell(2);
    contacts.table_rows.clear();
    contacts.m_table.reload();
    EXPECT_EQ(contacts.selected_row, -1);
    // A late click, before the view has drawn the other rows, selects none of the old ones.
    click_cell(1);
    EXPECT_TRUE(contacts.m_table.selected_rows().empty());
    open.turn();
    EXPECT_EQ(view->model()->rowCount(), 0);
}

TEST_F(Row_Table_Test, sorts_the_rows_themselves_and_nothing_that_comes_later) {
    click_cell(1);
    click_header(2);
    EXPECT_EQ(names(), "Adam Berta Cäsar ");
    EXPECT_EQ(contacts.selected_row, -1) << "a command would hit another row than the chosen one";
    EXPECT_TRUE(view->horizontalHeader()->isSortIndicatorShown());
    click_header(2);
    EXPECT_EQ(names(), "Cäsar Berta Adam ");
    append("Aaron");
    open.turn();
    EXPECT_EQ(names(), "Cäsar Berta Adam Aaron ");
    EXPECT_FALSE(view->horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(view->model()->index(3, 2).data().toString(), "Aaron");
}

TEST_F(Row_Table_Test, shows_what_is_searched_for_and_leaves_the_rows_as_they_are) {
    search("CAS");
    EXPECT_EQ(seen(), "Cäsar");
    QTest::keyClick(open.window->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(contacts.selected_row, 2);
    append("Casimir");
    open.turn();
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(contacts.m_table.selected_rows(), (std::vector<int>{2, 3}));
    click_header(2);
    EXPECT_EQ(seen(), "Casimir Cäsar");
    EXPECT_EQ(names(), "Adam Berta Casimir Cäsar ");
    click_cell(1);
    EXPECT_EQ(contacts.selected_row, 3);
    search("93");  // an id is no text
    EXPECT_EQ(seen(), "");
    QTest::keyClick(open.window->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(seen(), "Adam Berta Casimir Cäsar");
    EXPECT_TRUE(view->hasFocus());
}

TEST_F(Row_Table_Test, has_no_selected_row_once_a_search_hides_the_one_selected_last) {
    click_cell(0);
    click_cell(1, Qt::ControlModifier);
    search("b");
    EXPECT_EQ(contacts.m_table.selected_rows(), std::vector<int>{});
    EXPECT_FALSE(view->selectionModel()->hasSelection());
    QTest::keyClick(open.window->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(contacts.selected_row, -1);
    click_cell(2);
    search("555-3");
    contacts.m_table.reload_texts();
    open.turn();
    EXPECT_EQ(contacts.selected_row, 2);
    contacts.table_rows[2].col_phone_number = "0";
    contacts.m_table.reload_texts();
    open.turn();
    EXPECT_EQ(contacts.selected_row, -1);
}

TEST_F(Row_Table_Test, copies_the_selected_cells_as_lines_with_tabs) {
    contacts.table_rows[1].col_name = "two\nlines\tand a tab";
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "1\t91\tBerta\t555-1\n2\t92\ttwo lines and a tab\t555-2\n3\t93\tCäsar\t555-3\n");
}

TEST_F(Row_Table_Test, writes_an_open_editor_into_its_cell_when_another_view_is_shown) {
    view->setCurrentIndex(view->model()->index(1, 2));
    QTest::keyClick(view, Qt::Key_F2);
    auto* const editor = view->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->setText("Emil");
    open.document->displayViewController(DEFINE_VIEW_SMS);
    EXPECT_EQ(contacts.table_rows[1].col_name, "Emil");
    EXPECT_EQ(contacts.table_rows[1].col_phone_number, "555-2");
}

}  // namespace
}  // namespace velk
