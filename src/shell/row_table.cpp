#include "shell/row_table.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/look.h"
#include "shell/table_model.h"
#include "shell/text_label.h"

namespace velk {

namespace {

constexpr int space_in_a_row = 14;
constexpr int space_beside_a_cell = 12;
/// The view looks through all of them for each cell it paints: so many take 8 ms, which leaves it
/// time to be scrolled. Only a search that ends scatters as many.
constexpr int most_selected_pieces = 3000;
constexpr int most_letters_of_a_cell = 500;  // more than the widest screen has room for

/// One line of what may be a text of many pages, of which the rest has no room in any case.
QString start_of(const QString& text) {
    if (text.size() <= most_letters_of_a_cell) return one_line(text);
    return one_line(text.left(most_letters_of_a_cell)) + u'…';
}

/// Cells are one line of text; a right-to-left text is set from its own side but keeps its place,
/// and a text without room is told by the tool tip.
class Cell_Delegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override {
        return start_of(value.toString());
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const QString text = index.data().toString();
        const int room = option.rect.width() - 2 * space_beside_a_cell;
        const bool fits = view->fontMetrics().horizontalAdvance(start_of(text)) <= room;
        QToolTip::showText(event->globalPos(), fits ? QString() : plain_tool_tip(text), view);
        return true;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QWidget* const view = option.widget;
        view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, view);
        const QRect room = cell.rect.adjusted(space_beside_a_cell, 0, -space_beside_a_cell, 0);
        const bool selected = cell.state & QStyle::State_Selected;
        painter->save();
        painter->setPen(cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->setLayoutDirection(cell.text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(
            room, static_cast<int>(cell.displayAlignment | Qt::AlignAbsolute) | Qt::TextSingleLine,
            cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width()));
        painter->restore();
    }
};

}  // namespace

Row_Table::Row_Table(Table& table, Binding& binding, QString empty_text, QWidget* parent)
    : QTableView(parent),
      table_(table),
      model_(new Table_Model(table, this)),
      empty_text_(std::move(empty_text)),
      rows_(table.rows().count()),
      scrolls_(table.scrolls()) {
    setModel(model_);
    setItemDelegate(new Cell_Delegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setTabKeyNavigation(false);  // Tab leads on to the next control
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setAccessibleDescription(empty_text_);
    set_up_columns();
    add_selection_entries();
    add_sort_entries();
    connect(model_, &QAbstractItemModel::modelReset, this, &Row_Table::restore_selection);
    restore_selection();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Row_Table::report_selection);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &Row_Table::report_selection);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &Row_Table::sort_by);
    binding.bind(table, this, [this] { show_changes(); });
}

// All sizes are set once: measuring rows takes longer than everything else together.
void Row_Table::set_up_columns() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + space_in_a_row);
    QHeaderView* const header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setMinimumSectionSize(48);
    for (int i = 0; i < model_->columnCount(); ++i) {
        const Column& column = model_->column(i);
        setColumnWidth(i,
                       fontMetrics().averageCharWidth() * column.width + 2 * space_beside_a_cell);
        if (column.wide) header->setSectionResizeMode(i, QHeaderView::Stretch);
    }
}

void Row_Table::add_selection_entries() {
    auto* const all = new QAction(QStringLiteral("Select All"), this);
    all->setShortcuts(QKeySequence::SelectAll);
    connect(all, &QAction::triggered, this, &QTableView::selectAll);
    auto* const copy = new QAction(QStringLiteral("Copy"), this);
    copy->setShortcuts(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, &Row_Table::copy_selection);
    selection_entries_ = {all, copy};
    for (QAction* const entry : selection_entries_) entry->setShortcutContext(Qt::WidgetShortcut);
    addActions(selection_entries_);
}

// A table that is not shown does not listen.
void Row_Table::add_sort_entries() {
    for (int i = 0; i < model_->columnCount(); ++i) {
        const QString title = model_->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
        auto* const entry = new QAction(QStringLiteral("Sort by ") + title, this);
        entry->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i)));
        connect(entry, &QAction::triggered, this, [this, i] { sort_by(i); });
        sort_entries_.append(entry);
    }
    addActions(sort_entries_);
}

void Row_Table::show_changes() {
    model_->catch_up();
    const int rows_before = std::exchange(rows_, table_.rows().count());
    if (rows_ != rows_before && sorted_column_ != none) {
        sorted_column_ = none;  // rows that have come since are not sorted
        show_arrow();
    }
    if (std::exchange(scrolls_, table_.scrolls()) != table_.scrolls()) scrollToBottom();
}

std::vector<int> Row_Table::selected_row_numbers() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void Row_Table::report_selection() {
    if (by_itself_) return;
    model_->catch_up();  // a selection of rows that are gone is none
    std::vector<int> rows = selected_row_numbers();
    const int current = currentIndex().row();
    const bool selected = std::binary_search(rows.begin(), rows.end(), current);
    const int last = rows.empty() ? none : model_->table_row(selected ? current : rows.back());
    for (int& row : rows) row = model_->table_row(row);
    table_.select(std::move(rows), last);
}

// Rows of a model that starts anew have lost their selection in the view, not in the table. Once
// the row that a command would act on is out of sight, nothing is selected.
void Row_Table::restore_selection() {
    const int last = table_.selected_row();
    const int current = last == none ? none : model_->view_row(last);
    if (current == none) return table_.select({}, none);
    std::vector<int> kept;
    QItemSelection ranges;
    for (const int row : table_.selected_rows()) {
        const int place = model_->view_row(row);
        if (place == Table_Model::not_shown) continue;
        kept.push_back(row);
        if (ranges.isEmpty() || ranges.last().bottom() + 1 != place)
            ranges.select(model_->index(place, 0), model_->index(place, model_->columnCount() - 1));
        else
            ranges.last() = {ranges.last().topLeft(),
                             model_->index(place, model_->columnCount() - 1)};
    }
    if (ranges.size() > most_selected_pieces) return table_.select({}, none);
    by_itself_ = true;
    selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(model_->index(current, 0), QItemSelectionModel::NoUpdate);
    by_itself_ = false;
    table_.select(std::move(kept), last);
}

void Row_Table::search(const QString& typed) {
    model_->search(Search_Term(typed));
}

void Row_Table::sort_by(int column) {
    ascending_ = sorted_column_ != column || !ascending_;
    table_.sort(model_->table_column(column), ascending_);
    show_changes();
    sorted_column_ = column;
    show_arrow();
}

// The header turns an arrow of its own at every click; ours tells what has been done.
void Row_Table::show_arrow() {
    const Qt::SortOrder order = ascending_ ? Qt::AscendingOrder : Qt::DescendingOrder;
    if (sorted_column_ != none) horizontalHeader()->setSortIndicator(sorted_column_, order);
    horizontalHeader()->setSortIndicatorShown(sorted_column_ != none);
}

void Row_Table::copy_selection() const {
    QString text;
    for (const int row : selected_row_numbers()) {
        QStringList cells;
        for (int column = 0; column < model_->columnCount(); ++column)
            cells.append(one_line(model_->index(row, column).data().toString()));
        text += cells.join(u'\t') + u'\n';
    }
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

// The toolkit points at the first row when none is pointed at; that selects nothing.
void Row_Table::focusInEvent(QFocusEvent* event) {
    by_itself_ = true;
    QTableView::focusInEvent(event);
    by_itself_ = false;
}

void Row_Table::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    say_when_empty(viewport());
}

void Row_Table::say_when_empty(QWidget* on) const {
    if (model_->rowCount() > 0) return;
    const bool found_nothing = table_.rows().count() > 0;
    QPainter painter(on);
    painter.setPen(Look::now().muted);
    painter.drawText(on->rect().adjusted(24, 24, -24, -24),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap,
                     found_nothing ? QStringLiteral("Nothing matches.") : empty_text_);
}

}  // namespace velk
