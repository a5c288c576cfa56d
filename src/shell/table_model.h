#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "shell/search_term.h"
#include "ui/table.h"

namespace velk {

/// The rows of a Table for a view, or those of them that are searched for. It tells the view of
/// new rows only in catch_up(), and never reads a row that it has not told of.
class Table_Model : public QAbstractTableModel {
    Q_OBJECT

  public:
    static constexpr int not_shown = -1;

    /// `table` must outlive the model.
    explicit Table_Model(Table& table, QObject* parent = nullptr);

    /// Tells the view what has happened since the last call: other rows after a reload, else other
    /// texts in rows, and the appended ones, all in one.
    void catch_up();
    /// Shows only the rows that have the term in a column of texts; the rows themselves stay as
    /// they are. The view learns of it as of other rows.
    void search(const Search_Term& term);
    bool searching() const { return !term_.empty(); }

    /// The table's row that the view shows at this place.
    int table_row(int row) const;
    /// Where the view shows the table's row, or not_shown.
    int view_row(int row) const;
    /// The table's column that the view shows at this place; hidden ones are left out.
    int table_column(int column) const { return columns_[static_cast<std::size_t>(column)]; }
    /// Where the view shows the table's column, which is not hidden.
    int view_column(int column) const;
    const Column& column(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    void start_anew();
    void show_new_texts();
    void show_appended();
    bool is_found(int row) const;
    std::vector<int> found_between(int first, int end) const;
    bool is_there(const QModelIndex& index) const;

    Table& table_;
    std::vector<int> columns_;
    Search_Term term_;
    std::vector<int> found_;  // the rows that are shown, ascending, while something is searched for
    int announced_ = 0;
    int reloads_ = 0;
    int new_texts_ = 0;
};

}  // namespace velk
