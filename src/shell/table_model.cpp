#include "shell/table_model.h"

#include "shell/widgets.h"

namespace velk {

namespace {

QVariant alignment(Comparison comparison) {
    const auto side = comparison == Comparison::text ? Qt::AlignLeft : Qt::AlignRight;
    return QVariant(side | Qt::AlignVCenter);
}

}  // namespace

Table_Model::Table_Model(Table& table, QObject* parent)
    : QAbstractTableModel(parent),
      table_(table),
      announced_(table.rows().count()),
      reloads_(table.reloads()) {
    const auto& all = table.rows().columns();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (!all[i].hidden) columns_.push_back(static_cast<int>(i));
}

const Column& Table_Model::column(int column) const {
    return table_.rows().columns()[static_cast<std::size_t>(table_column(column))];
}

void Table_Model::catch_up() {
    const int count = table_.rows().count();
    if (reloads_ != table_.reloads() || count < announced_) {
        beginResetModel();
        reloads_ = table_.reloads();
        announced_ = count;
        endResetModel();
    } else if (count > announced_) {
        beginInsertRows({}, announced_, count - 1);
        announced_ = count;
        endInsertRows();
    }
}

int Table_Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : announced_;
}

int Table_Model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

// Between a change of the rows and the next catch_up() fewer may be there than were told of.
bool Table_Model::is_there(const QModelIndex& index) const {
    return index.isValid() && index.row() < announced_ && index.row() < table_.rows().count();
}

QVariant Table_Model::data(const QModelIndex& index, int role) const {
    if (!is_there(index)) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return shown(table_.rows().cell(index.row(), table_column(index.column())));
        case Qt::TextAlignmentRole:
            return alignment(column(index.column()).comparison);
        default:
            return {};
    }
}

bool Table_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !is_there(index)) return false;
    const QByteArray text = value.toString().toUtf8();
    table_.rows().set_cell(index.row(), table_column(index.column()), text.toStdString());
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

QVariant Table_Model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::DisplayRole) return QString::fromUtf8(column(section).title);
    if (role == Qt::TextAlignmentRole) return alignment(column(section).comparison);
    return {};
}

Qt::ItemFlags Table_Model::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

}  // namespace velk
