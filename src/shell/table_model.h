#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "ui/table.h"

namespace velk {

/// The rows of a Table for a view. It tells the view of new rows only in catch_up(), and never
/// reads a row that it has not told of.
class Table_Model : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// `table` must outlive the model.
    explicit Table_Model(Table& table, QObject* parent = nullptr);

    /// Tells the view what has happened since the last call: other rows after a reload, else the
    /// appended ones, all in one.
    void catch_up();

    /// The table's column that the view shows at this place; hidden ones are left out.
    int table_column(int column) const { return columns_[static_cast<std::size_t>(column)]; }
    const Column& column(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool is_there(const QModelIndex& index) const;

    Table& table_;
    std::vector<int> columns_;
    int announced_ = 0;
    int reloads_ = 0;
};

}  // namespace velk
