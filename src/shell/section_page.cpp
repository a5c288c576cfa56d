#include "shell/section_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>

#include "shell/detail_pane.h"
#include "shell/drop_area.h"
#include "shell/look.h"
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
    row->addWidget(new Search_Box(*table_, shown(section_.search_text), this), 1);
    return row;
}

QLayout* Section_Page::command_row() {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    for (const Command& command : section_.commands) {
        QPushButton* const button = command_button(command, parts_.guards, this);
        row->addWidget(button);
        if (!command.on_delete_key) continue;
        auto* const key =
            new QShortcut(QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut);
        connect(key, &QShortcut::activated, button, &QPushButton::click);
    }
    row->addStretch();
    return row;
}

QWidget* Section_Page::table_and_detail() {
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
