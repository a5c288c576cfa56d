#include "shell/dialog_window.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <algorithm>
#include <functional>
#include <utility>

#include "shell/row_table.h"
#include "shell/search_box.h"
#include "shell/text_label.h"
#include "shell/widgets.h"

namespace velk {

namespace {

constexpr int width_of_lines = 420;
constexpr int width_of_texts = 560;  // room for a table, for messages and for what is said of them
constexpr int height_of_a_table = 320;
constexpr int lines_of_a_message = 6;

}  // namespace

Dialog_Window::Dialog_Window(Dialog& dialog, QWidget* front) : QDialog(front), dialog_(dialog) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(shown(dialog.name()));
    binding_.bind(dialog.window_title, this,
                  [this] { setWindowTitle(shown(dialog_.window_title.text())); });
    dialog.on_close([this] { done(Rejected); });
    build();
}

Dialog_Window::~Dialog_Window() {
    if (is_open_) dialog_.on_close({});
}

void Dialog_Window::build() {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(large_space, large_space, large_space, space_between);
    column->setSpacing(space_between);
    if (!dialog_.fields.empty()) add_fields(column);
    if (dialog_.table) add_table(column);
    add_lines(column);
    column->addLayout(button_row());
    const bool has_texts =
        dialog_.table || std::any_of(dialog_.fields.begin(), dialog_.fields.end(),
                                     std::mem_fn(&Dialog_Field::many_lines));
    setMinimumWidth(has_texts ? width_of_texts : width_of_lines);
    if (first_input_) first_input_->setFocus();
}

void Dialog_Window::add_lines(QBoxLayout* column) {
    if (!dialog_.status && !dialog_.quiet) return;
    auto* const lines = new QVBoxLayout;
    column->addLayout(lines);
    set_tight(lines, 2);
    if (dialog_.status) lines->addWidget(status_line(binding_, *dialog_.status, this));
    if (dialog_.quiet) lines->addWidget(quiet_line(binding_, *dialog_.quiet, this));
}

void Dialog_Window::add_fields(QBoxLayout* column) {
    auto* const grid = new QGridLayout;
    column->addLayout(grid);
    grid->setHorizontalSpacing(space_between);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    for (const Dialog_Field& field : dialog_.fields) add_field(field, grid);
}

void Dialog_Window::add_field(const Dialog_Field& field, QGridLayout* grid) {
    const int row = grid->rowCount();
    auto* const caption = new QLabel(shown(field.caption), this);
    QWidget* const control = control_of(field);
    caption->setBuddy(control);
    make_quiet(caption);
    // A caption stands beside the first of many lines.
    if (field.many_lines) caption->setContentsMargins(0, small_space, 0, 0);
    grid->addWidget(caption, row, 0, field.many_lines ? Qt::AlignTop : Qt::AlignVCenter);
    auto* const line = new QHBoxLayout;
    set_tight(line, small_space);
    line->addWidget(control, 1);
    if (field.beside) line->addWidget(command_button(*field.beside, guards_, this));
    grid->addLayout(line, row, 1);
}

QWidget* Dialog_Window::control_of(const Dialog_Field& field) {
    if (field.shows) {
        auto* const label = new Text_Label(this);
        bind_label(binding_, *field.shows, label);
        return label;
    }
    if (!field.many_lines) {
        auto* const edit = new QLineEdit(this);
        bind_field(binding_, *field.takes, edit);
        focus_first(edit);
        return edit;
    }
    auto* const edit = new QTextEdit(this);
    edit->setMinimumHeight(lines_of_a_message * fontMetrics().lineSpacing() + large_space);
    bind_field(binding_, *field.takes, edit);
    focus_first(edit);
    return edit;
}

void Dialog_Window::add_table(QLayout* column) {
    Table& shows = *dialog_.table;
    auto* const table = new Row_Table(shows, binding_, shown(dialog_.empty_text));
    table->setObjectName(shown(shows.name()));
    table->setAccessibleName(shown(dialog_.table_title));
    table->setMinimumHeight(height_of_a_table);
    auto* const search = new Search_Box(*table, {}, this);
    search->setMaximumWidth(QWIDGETSIZE_MAX);
    column->addWidget(search);
    column->addWidget(table);
    focus_first(search);
}

QLayout* Dialog_Window::button_row() {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    row->addStretch();
    for (const Command& command : dialog_.commands) {
        QPushButton* const button = command_button(command, guards_, this);
        button->setProperty("primary", command.is_default);
        row->addWidget(button);
        button->setDefault(command.is_default);
    }
    // Else the toolkit would name a default button of its own where the dialog has none.
    const auto buttons = findChildren<QPushButton*>();
    for (auto* const button : buttons) button->setAutoDefault(false);
    give_keys({buttons.begin(), buttons.end()});
    return row;
}

void Dialog_Window::focus_first(QWidget* input) {
    if (!first_input_) first_input_ = input;
}

// Return on a button that has the focus is a click on that one.
void Dialog_Window::keyPressEvent(QKeyEvent* event) {
    auto* const button = qobject_cast<QPushButton*>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QDialog::keyPressEvent(event);
}

void Dialog_Window::done(int result) {
    for (auto* const before : findChildren<QDialog*>(Qt::FindDirectChildrenOnly))
        if (before->isVisible()) before->reject();
    if (std::exchange(is_open_, false)) dialog_.on_close({});
    QDialog::done(result);
}

}  // namespace velk
