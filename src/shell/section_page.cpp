#include "shell/section_page.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>

#include "session/main_document.h"
#include "shell/detail_pane.h"
#include "shell/drop_area.h"
#include "shell/look.h"
#include "shell/picture_list.h"
#include "shell/row_table.h"
#include "shell/search_box.h"
#include "shell/text_label.h"

namespace velk {

namespace {

constexpr int share_of_the_table = 2;  // beside one of the detail pane
constexpr int space_between_lines = 12;

}  // namespace

// Put in in the order in which they stand, which is the order of the Tab key. The table is made
// first, for the search box and the commands need it, and put in in its turn.
Section_Page::Section_Page(const Section& section, const Window_Parts& parts)
    : section_(section),
      parts_(parts),
      table_(new Row_Table(*section.table, parts.binding, shown(section.empty_text))) {
    table_->setObjectName(shown(section.table->name()));
    table_->setAccessibleName(shown(section.title));
    if (section.pictures.path_column) make_pictures();
    for (const Command& command : section.commands) add_menu_entry(command);
    add_separator_to_menu();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(large_space, space_between, large_space, small_space);
    column->setSpacing(space_between_lines);
    column->addLayout(title_row());
    column->addLayout(command_row());
    column->addWidget(table_and_detail(), 1);
    column->addLayout(status_lines());
    if (section.drop.take) new Drop_Area(section.drop, this);
}

QLayout* Section_Page::title_row() {
    auto* const row = new QHBoxLayout;
    set_tight(row, space_between);
    auto* const title = new QLabel(shown(section_.title), this);
    title->setFont(scaled_font(1.45, true));
    row->addWidget(title);
    row->addStretch(1);
    if (pictures_) row->addLayout(view_switch());
    auto* const search = new Search_Box(*table_, shown(section_.search_text), this);
    menu_entries_.append({search->find(), search->show_all()});
    menu_entries_.append(table_->selection_entries());
    for (QAction* const entry : table_->selection_entries()) give_to_rows(entry);
    give_to_rows(search->show_all());
    add_separator_to_menu();
    menu_entries_.append(table_->sort_entries());
    row->addWidget(search, 1);
    return row;
}

QLayout* Section_Page::command_row() {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    for (const Command& command : section_.commands)
        row->addWidget(command_button(command, parts_.guards, this));
    row->addStretch();
    return row;
}

void Section_Page::add_menu_entry(const Command& command) {
    QAction* const entry = command_action(command, parts_.guards, this);
    menu_entries_.append(entry);
    if (!command.on_delete_key) return;
    entry->setShortcut(QKeySequence::Delete);
    give_to_rows(entry);
}

// The entry's key works where the rows are shown: typed elsewhere it must not act on them.
void Section_Page::give_to_rows(QAction* entry) {
    entry->setShortcutContext(Qt::WidgetShortcut);
    table_->addAction(entry);
    if (pictures_) pictures_->addAction(entry);
}

void Section_Page::add_separator_to_menu() {
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    menu_entries_.append(separator);
}

void Section_Page::add_switch_to_menu(QPushButton* half, const QKeySequence& keys) {
    auto* const entry = new QAction(half->text(), this);
    entry->setObjectName(half->objectName());
    entry->setShortcut(keys);
    entry->setCheckable(true);
    entry->setChecked(half->isChecked());
    menu_entries_.append(entry);
    connect(half, &QPushButton::toggled, entry, &QAction::setChecked);
    connect(entry, &QAction::triggered, half, [half, entry] {
        half->click();
        entry->setChecked(half->isChecked());  // also when it was down already
    });
}

void Section_Page::make_pictures() {
    pictures_ = new Picture_List(section_, *table_, parts_.document.desktop(),
                                 [&document = parts_.document] { return !document.is_at_work(); });
    pictures_->setObjectName(table_->objectName() + QStringLiteral("_pictures"));
    pictures_->setAccessibleName(table_->accessibleName());
    parts_.guards.on_look([list = pictures_] { list->go_on(); });
}

// Two buttons like one, of which one half is down.
QLayout* Section_Page::view_switch() {
    auto* const both = new QHBoxLayout;
    set_tight(both, 0);
    auto* const list = new QPushButton(QStringLiteral("List"), this);
    auto* const pictures = new QPushButton(QStringLiteral("Pictures"), this);
    list->setObjectName(QStringLiteral("view_list"));
    pictures->setObjectName(QStringLiteral("view_pictures"));
    list->setProperty("half", "left");
    pictures->setProperty("half", "right");
    for (QPushButton* const half : {list, pictures}) {
        half->setCheckable(true);
        half->setAutoExclusive(true);
        both->addWidget(half);
    }
    list->setChecked(true);
    add_switch_to_menu(list, Qt::CTRL | Qt::Key_L);
    add_switch_to_menu(pictures, Qt::CTRL | Qt::Key_P);
    add_separator_to_menu();
    connect(pictures, &QPushButton::toggled, this, &Section_Page::show_pictures);
    return both;
}

// Who wants the table to have the keys, gives them to what stands in its place.
void Section_Page::show_pictures(bool pictures) {
    table_->setFocusProxy(pictures ? pictures_ : nullptr);
    views_->setCurrentWidget(pictures ? static_cast<QWidget*>(pictures_) : table_);
    const QModelIndex current = table_->currentIndex();
    if (current.isValid()) pictures ? pictures_->scrollTo(current) : table_->scrollTo(current);
}

QWidget* Section_Page::table_and_detail() {
    if (pictures_) {
        views_ = new QStackedWidget(this);
        views_->addWidget(table_);
        views_->addWidget(pictures_);
        return views_;
    }
    if (!section_.detail.text) return table_;
    auto* const both = new QSplitter(Qt::Horizontal, this);
    both->setChildrenCollapsible(false);
    both->setHandleWidth(space_between_lines);
    both->addWidget(table_);
    both->addWidget(new Detail_Pane(section_.detail, parts_.binding));
    both->setStretchFactor(0, share_of_the_table);
    both->setStretchFactor(1, 1);
    return both;
}

QLayout* Section_Page::status_lines() {
    auto* const lines = new QVBoxLayout;
    set_tight(lines, 2);
    auto* const statuses = new QHBoxLayout;
    set_tight(statuses, space_between);
    statuses->addWidget(status_line(parts_.binding, *section_.status, this), 1);
    if (section_.second_status)
        statuses->addWidget(status_line(parts_.binding, *section_.second_status, this));
    lines->addLayout(statuses);
    if (section_.quiet) lines->addWidget(quiet_line(parts_.binding, *section_.quiet, this));
    return lines;
}

}  // namespace velk
