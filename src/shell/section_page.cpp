#include "shell/section_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include "shell/look.h"
#include "shell/pictures.h"
#include "shell/row_table.h"
#include "shell/text_label.h"

namespace velk {

namespace {

QPushButton* command_button(const Command& command, const Window_Parts& parts) {
    auto* const button = new QPushButton(shown(command.caption));
    button->setObjectName(shown(command.name));
    button->setIcon(themed_icon(shown(command.icon)));
    parts.guards.connect_button(button, command.guard, command.run);
    return button;
}

}  // namespace

Section_Page::Section_Page(const Section& section, const Window_Parts& parts) {
    // Made in the order in which they stand, which is the order of the Tab key.
    QHBoxLayout* const commands = command_row(section, parts);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(large_space, space_between, large_space, space_between);
    column->setSpacing(12);
    column->addLayout(commands);
    table_ = new Row_Table(*section.table, parts.binding, shown(section.empty_text), this);
    table_->setObjectName(shown(section.table->name()));
    table_->setAccessibleName(shown(section.title));
    column->addWidget(table_, 1);
    auto* const status = new Text_Label(this);
    status->set_sentence();
    status->setAccessibleDescription(QStringLiteral("Status"));
    make_quiet(status);
    column->addWidget(status);
    bind_label(parts.binding, *section.status, status);
    for (auto* const button : findChildren<QPushButton*>())
        if (button->text() == QStringLiteral("Delete"))
            connect(
                new QShortcut(QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, button, &QPushButton::click);
}

QHBoxLayout* Section_Page::command_row(const Section& section, const Window_Parts& parts) {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    auto* const title = new QLabel(shown(section.title), this);
    title->setFont(scaled_font(1.45, true));
    row->addWidget(title);
    row->addSpacing(space_between);
    for (const Command& command : section.commands) {
        QPushButton* const button = command_button(command, parts);
        button->setParent(this);
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

}  // namespace velk
