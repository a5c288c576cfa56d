#include "shell/search_box.h"

#include <QAction>
#include <QKeyEvent>

#include "shell/pictures.h"
#include "shell/row_table.h"

namespace velk {

namespace {

constexpr int least_width = 200;
constexpr int most_width = 340;
constexpr int less_space_behind_the_icon = -5;

}  // namespace

Search_Box::Search_Box(Row_Table& table, const QString& looks_for, QWidget* parent)
    : QLineEdit(parent),
      table_(table),
      find_(new QAction(QStringLiteral("Find"), this)),
      show_all_(new QAction(QStringLiteral("Show All Rows"), this)) {
    setObjectName(table.objectName() + QStringLiteral("_search"));
    setAccessibleName(QStringLiteral("Search"));
    setPlaceholderText(looks_for.isEmpty() ? QStringLiteral("Search") : looks_for);
    setToolTip(QStringLiteral("Shows the rows with this text (Ctrl+F)"));
    setMinimumWidth(least_width);
    setMaximumWidth(most_width);
    setTextMargins(less_space_behind_the_icon, 0, 0, 0);
    auto* const clear =
        addAction(themed_icon(QStringLiteral("clear"), Ink::muted), TrailingPosition);
    clear->setText(QStringLiteral("Clear"));
    clear->setVisible(false);
    connect(clear, &QAction::triggered, this, &QLineEdit::clear);
    show_all_->setShortcut(Qt::Key_Escape);
    show_all_->setShortcutContext(Qt::WidgetShortcut);
    show_all_->setEnabled(false);
    table.addAction(show_all_);
    connect(show_all_, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, &table, [this, &table, clear](const QString& typed) {
        clear->setVisible(!typed.isEmpty());
        show_all_->setEnabled(!typed.isEmpty());
        table.search(typed);
    });
    // A box that is not shown does not listen.
    find_->setObjectName(QStringLiteral("find"));
    find_->setShortcut(QKeySequence::Find);
    find_->setIcon(themed_icon(QStringLiteral("search"), Ink::muted));
    find_->setIconVisibleInMenu(false);
    addAction(find_, LeadingPosition);
    connect(find_, &QAction::triggered, this, [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    });
}

void Search_Box::lead_into_the_table() {
    const bool selected = table_.selectionModel()->hasSelection();
    table_.setFocus(Qt::OtherFocusReason);
    if (!selected) table_.selectRow(0);
}

void Search_Box::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            // What is empty has nothing to end: the key is the dialog's then, if there is one.
            event->setAccepted(!text().isEmpty());
            clear();
            table_.setFocus(Qt::OtherFocusReason);
            break;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            lead_into_the_table();
            break;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

}  // namespace velk
