// Tables without a window: rows with named fields, and the table outlet that shows them.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/outlets.h"

namespace velk {

/// How a column's cells compare when its header is clicked.
enum class Comparison {
    text,    // by the collation of the person's locale
    number,  // by the number the text starts with
    size,    // by the bytes that texts such as "1.50 KB" stand for
};

/// What a table shows of one field of its rows.
struct Column {
    const char* identifier;  // the field's name, "col_name"
    const char* title;       // what the header reads
    Comparison comparison = Comparison::text;
    int width = 12;        // at the start, in average characters
    bool wide = false;     // takes what room is left
    bool hidden = false;   // kept in the row, not shown
    bool fixed = false;    // what the phone knows a thing by: nobody is to write into it
    bool searched = true;  // where it holds words; false for dates and for words like "Inbox"
};

/// The rows behind a table, seen cell by cell. User-interface thread.
class Table_Rows {
  public:
    virtual ~Table_Rows() = default;
    virtual const std::vector<Column>& columns() const = 0;
    virtual int count() const = 0;
    /// The field that bears the column's identifier. Row and column must exist.
    virtual const std::string& cell(int row, int column) const = 0;
    /// Writes the cell into the row's field, and nowhere else.
    virtual void set_cell(int row, int column, std::string text) = 0;
    /// Puts the rows themselves in order; rows that compare equal keep theirs.
    virtual void sort(int column, bool ascending) = 0;
};

/// The column with this identifier, which must be there.
int column_named(const Table_Rows& rows, std::string_view identifier);

/// The order that sorts these cells: element i is the old place of the row that comes i-th.
std::vector<int> sorted_order(const std::vector<std::string>& cells, Comparison comparison,
                              bool ascending);

/// A column and the field of the row object that it shows.
template <class Row>
struct Row_Column {
    Column column;
    std::string Row::*field;
};

/// The ordered list of row objects of one kind. `Row::row_columns()` describes the kind.
template <class Row>
class Row_List : public Table_Rows {
  public:
    Row_List() {
        for (const Row_Column<Row>& described : Row::row_columns())
            columns_.push_back(described.column);
    }

    std::size_t size() const { return rows_.size(); }
    bool empty() const { return rows_.empty(); }
    Row& operator[](std::size_t row) { return rows_[row]; }
    const Row& operator[](std::size_t row) const { return rows_[row]; }
    auto begin() const { return rows_.begin(); }
    auto end() const { return rows_.end(); }
    void push_back(Row row) { rows_.push_back(std::move(row)); }
    void clear() {
        rows_.clear();
        ++clears_;
    }
    /// How often it was emptied: by it who fills the list knows whether it is still his.
    int clears() const { return clears_; }
    /// Takes out the rows with these indexes, which are ascending; the others keep their order.
    void erase(const std::vector<int>& indexes) {
        auto next = indexes.begin();
        int index = 0;
        std::erase_if(rows_, [&](const Row&) {
            const bool goes = next != indexes.end() && *next == index;
            if (goes) ++next;
            ++index;
            return goes;
        });
    }

    const std::vector<Column>& columns() const override { return columns_; }
    int count() const override { return static_cast<int>(rows_.size()); }
    const std::string& cell(int row, int column) const override {
        return rows_[static_cast<std::size_t>(row)].*field(column);
    }
    void set_cell(int row, int column, std::string text) override {
        rows_[static_cast<std::size_t>(row)].*field(column) = std::move(text);
    }
    void sort(int column, bool ascending) override {
        std::vector<std::string> cells;
        cells.reserve(rows_.size());
        for (const Row& row : rows_) cells.push_back(row.*field(column));
        const Comparison comparison = columns_[static_cast<std::size_t>(column)].comparison;
        std::deque<Row> sorted;
        for (const int old_place : sorted_order(cells, comparison, ascending))
            sorted.push_back(std::move(rows_[static_cast<std::size_t>(old_place)]));
        rows_ = std::move(sorted);
    }

  private:
    static std::string Row::*field(int column) {
        return Row::row_columns()[static_cast<std::size_t>(column)].field;
    }

    std::deque<Row> rows_;  // which grows without moving what is there
    int clears_ = 0;
    std::vector<Column> columns_;
};

/// The table view: tells the window what happened to the rows, and the program what the person
/// has selected and which header was clicked.
class Table : public Outlet {
  public:
    /// `rows` must outlive the table.
    Table(std::string name, Table_Rows& rows) : Outlet(std::move(name)), rows_(rows) {}

    Table_Rows& rows() { return rows_; }
    const Table_Rows& rows() const { return rows_; }

    // --- for the program ---

    bool editable = true;  // the person may write into cells of words

    /// The rows are other rows now: everything is read anew, the selection is gone.
    void reload();
    /// Rows were appended behind those that were there; everything else stays.
    void reload_appended() { changed(); }
    /// Rows have other texts now; places and selection stay.
    void reload_texts() {
        ++new_texts_;
        changed();
    }
    /// Brings the last row into sight.
    void scroll_to_last();
    /// Index of the row last selected, -1 when none is.
    int selected_row() const { return selected_.empty() ? -1 : last_selected_; }
    /// All selected rows, ascending.
    const std::vector<int>& selected_rows() const { return selected_; }
    /// Called after every change of the selection.
    void on_selection(std::function<void()> handler) { selection_changed_ = std::move(handler); }

    // --- for the window ---

    /// Counts the reloads; the window compares it with the one it has drawn.
    int reloads() const { return reloads_; }
    /// Counts the times that texts in rows have changed.
    int new_texts() const { return new_texts_; }
    /// Counts the wishes to see the last row.
    int scrolls() const { return scrolls_; }
    /// The person selected these rows (ascending), `last` of them last.
    void select(std::vector<int> rows, int last);
    /// The person clicked a header.
    void sort(int column, bool ascending);

  private:
    Table_Rows& rows_;
    std::vector<int> selected_;
    int last_selected_ = -1;
    int reloads_ = 0;
    int new_texts_ = 0;
    int scrolls_ = 0;
    std::function<void()> selection_changed_;
};

}  // namespace velk
