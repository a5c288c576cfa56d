#include "shell/table_model.h"

#include <algorithm>
#include <utility>

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
      reloads_(table.reloads()),
      new_texts_(table.new_texts()) {
    const auto& all = table.rows().columns();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (!all[i].hidden) columns_.push_back(static_cast<int>(i));
}

const Column& Table_Model::column(int column) const {
    return table_.rows().columns()[static_cast<std::size_t>(table_column(column))];
}

int Table_Model::view_column(int column) const {
    return static_cast<int>(std::find(columns_.begin(), columns_.end(), column) - columns_.begin());
}

int Table_Model::table_row(int row) const {
    return searching() ? found_[static_cast<std::size_t>(row)] : row;
}

int Table_Model::view_row(int row) const {
    if (!searching()) return row < announced_ ? row : not_shown;
    const auto place = std::lower_bound(found_.begin(), found_.end(), row);
    if (place == found_.end() || *place != row) return not_shown;
    return static_cast<int>(place - found_.begin());
}

void Table_Model::catch_up() {
    const bool new_texts = std::exchange(new_texts_, table_.new_texts()) != table_.new_texts();
    const int count = table_.rows().count();
    if (reloads_ != table_.reloads() || count < announced_) return start_anew();
    if (new_texts) show_new_texts();
    if (count > announced_) show_appended();
}

void Table_Model::search(const Search_Term& term) {
    if (term.empty() && !searching()) return;
    catch_up();
    beginResetModel();
    const bool narrows = searching() && term.narrows(term_);
    term_ = term;
    if (narrows)
        std::erase_if(found_, [this](int row) { return !is_found(row); });
    else
        found_ = found_between(0, announced_);
    endResetModel();
}

void Table_Model::start_anew() {
    beginResetModel();
    reloads_ = table_.reloads();
    announced_ = table_.rows().count();
    found_ = found_between(0, announced_);
    endResetModel();
}

void Table_Model::show_new_texts() {
    if (searching()) return start_anew();
    if (announced_ == 0) return;
    emit dataChanged(index(0, 0), index(announced_ - 1, columnCount() - 1),
                     {Qt::DisplayRole, Qt::EditRole});
}

void Table_Model::show_appended() {
    const int count = table_.rows().count();
    const std::vector<int> found = found_between(announced_, count);
    const int added = searching() ? static_cast<int>(found.size()) : count - announced_;
    if (added > 0) beginInsertRows({}, rowCount(), rowCount() + added - 1);
    announced_ = count;
    found_.insert(found_.end(), found.begin(), found.end());
    if (added > 0) endInsertRows();
}

bool Table_Model::is_found(int row) const {
    return std::any_of(columns_.begin(), columns_.end(), [&](int column) {
        const auto& described = table_.rows().columns()[static_cast<std::size_t>(column)];
        return described.searched && described.comparison == Comparison::text &&
               term_.is_in(table_.rows().cell(row, column));
    });
}

std::vector<int> Table_Model::found_between(int first, int end) const {
    std::vector<int> found;
    for (int row = first; searching() && row < end; ++row)
        if (is_found(row)) found.push_back(row);
    return found;
}

int Table_Model::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return searching() ? static_cast<int>(found_.size()) : announced_;
}

int Table_Model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

// Between a change of the rows and the next catch_up() fewer may be there than were told of.
bool Table_Model::is_there(const QModelIndex& index) const {
    return index.isValid() && index.row() < rowCount() &&
           table_row(index.row()) < table_.rows().count();
}

QVariant Table_Model::data(const QModelIndex& index, int role) const {
    if (!is_there(index)) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return shown(table_.rows().cell(table_row(index.row()), table_column(index.column())));
        case Qt::TextAlignmentRole:
            return alignment(column(index.column()).comparison);
        default:
            return {};
    }
}

bool Table_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
    // An editor may end after other rows have come into the place of its own.
    if (role != Qt::EditRole || reloads_ != table_.reloads() || !is_there(index)) return false;
    // What is shown need not be all that the cell holds, and nothing was written then.
    if (value == data(index, role)) return false;
    table_.rows().set_cell(table_row(index.row()), table_column(index.column()),
                           value.toString().toStdString());
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

QVariant Table_Model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::DisplayRole) return QString::fromUtf8(column(section).title);
    if (role == Qt::TextAlignmentRole) return alignment(column(section).comparison);
    return {};
}

// Numbers and sizes are the phone's, and so is what names a file or an application: a command that
// was given for one must not go to another. All other words are a person's to write.
Qt::ItemFlags Table_Model::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Column& shown_as = column(index.column());
    const bool words = shown_as.comparison == Comparison::text && !shown_as.fixed;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
           (words && table_.editable ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

}  // namespace velk
