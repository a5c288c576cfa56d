#include "shell/widgets.h"

#include <QAccessible>
#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextEdit>
#include <algorithm>
#include <limits>
#include <utility>

#include "session/main_document.h"
#include "shell/level_gauge.h"
#include "shell/look.h"
#include "shell/picture_view.h"
#include "shell/pictures.h"
#include "shell/text_label.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

/// What all kinds have in common: the name, and being there or not.
template <class Outlet_Type, class Widget, class Show>
void bind_widget(Binding& binding, Outlet_Type& outlet, Widget* widget, Show show) {
    widget->setObjectName(shown(outlet.name()));
    binding.bind(outlet, widget, [&outlet, widget, show] {
        show(outlet, widget);
        // A widget that no layout holds yet would open as a window of its own.
        if (outlet.hidden() || widget->parentWidget()) widget->setHidden(outlet.hidden());
    });
}

/// What was typed, its blanks as they are: toPlainText() makes all of them plain.
QString typed_in(const QTextEdit* edit) {
    QString text = edit->document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

/// Does not move the cursor of somebody who is typing.
void show_in(QTextEdit* edit, const QString& text) {
    if (typed_in(edit) == text) return;
    const QSignalBlocker nobody_types(edit);
    edit->setPlainText(text);
}

}  // namespace

QString shown(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void bind_label(Binding& binding, Label& outlet, Text_Label* label) {
    bind_widget(binding, outlet, label, [](const Label& from, Text_Label* to) {
        to->show_text(shown(from.text()), shown(from.tool_tip()));
    });
}

void bind_text(Binding& binding, Label& outlet, QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    bind_widget(binding, outlet, label, [](const Label& from, QLabel* to) {
        to->setText(shown(from.text()));
        to->setToolTip(plain_tool_tip(shown(from.tool_tip())));
    });
}

void bind_button(Binding& binding, Button& outlet, QAbstractButton* button) {
    bind_widget(binding, outlet, button, [](const Button& from, QAbstractButton* to) {
        // A "&" of the program's is no mark of a shortcut.
        to->setText(shown(from.title()).replace(u'&', QStringLiteral("&&")));
    });
}

void bind_gauge(Binding& binding, Level_Indicator& outlet, Level_Gauge* gauge) {
    bind_widget(binding, outlet, gauge, [](const Level_Indicator& from, Level_Gauge* to) {
        to->setValue(std::clamp(from.value(), 0, from.maximum()));
    });
}

void bind_image(Binding& binding, Image& outlet, Picture_View* image) {
    bind_widget(binding, outlet, image, [](const Image& from, Picture_View* to) {
        to->show_picture(shown(from.picture()));
    });
}

void bind_reading(Binding& binding, Label& outlet, QTextEdit* edit) {
    edit->setReadOnly(true);
    edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    edit->setTabChangesFocus(true);
    bind_widget(binding, outlet, edit, [](const Label& from, QTextEdit* to) {
        show_in(to, shown(from.text()));
        to->setAccessibleName(shown(from.text()));
    });
}

void bind_reading(Binding& binding, Label& outlet, QLineEdit* edit) {
    edit->setReadOnly(true);
    edit->setFrame(false);
    edit->setProperty("reading", true);
    bind_widget(binding, outlet, edit, [](const Label& from, QLineEdit* to) {
        to->setText(shown(from.text()));
        to->setCursorPosition(0);
        // Tab does not lead to what has nothing to read.
        to->setFocusPolicy(from.text().empty() ? Qt::NoFocus : Qt::StrongFocus);
        to->setAccessibleName(shown(from.text()));
    });
}

void bind_field(Binding& binding, Text_Field& outlet, QLineEdit* edit) {
    edit->setMaxLength(std::numeric_limits<int>::max());
    bind_widget(binding, outlet, edit, [](const Text_Field& from, QLineEdit* to) {
        const QString text = shown(from.text());
        if (text != to->text()) to->setText(text);
    });
    QObject::connect(edit, &QLineEdit::textEdited, edit,
                     [&outlet](const QString& typed) { outlet.type(typed.toStdString()); });
}

void bind_field(Binding& binding, Text_Field& outlet, QTextEdit* edit) {
    edit->setAcceptRichText(false);
    edit->setTabChangesFocus(true);
    bind_widget(binding, outlet, edit,
                [](const Text_Field& from, QTextEdit* to) { show_in(to, shown(from.text())); });
    QObject::connect(edit, &QTextEdit::textChanged, edit,
                     [&outlet, edit] { outlet.type(typed_in(edit).toStdString()); });
}

void make_quiet(QLabel* label) {
    label->setProperty("quiet", true);
}

QLabel* quiet_caption(const QString& text) {
    auto* const label = new QLabel(text);
    make_quiet(label);
    label->setFont(scaled_font(0.85));
    return label;
}

QPushButton* command_button(const Command& command, Guards& guards, QWidget* parent) {
    auto* const button = new QPushButton(shown(command.caption), parent);
    button->setObjectName(shown(command.name));
    button->setIcon(themed_icon(shown(command.icon)));
    guards.connect_button(button, command.guard, command.run);
    return button;
}

QAction* command_action(const Command& command, Guards& guards, QWidget* parent) {
    auto* const action =
        new QAction(shown(command.caption).replace(u'&', QStringLiteral("&&")), parent);
    action->setObjectName(shown(command.name));
    if (command.keys)
        action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(command.keys)));
    guards.connect_action(action, command.guard, command.run);
    return action;
}

// The captions stay as they are, without a mark in them.
void give_keys(const QList<QAbstractButton*>& buttons) {
    QString taken;
    for (QAbstractButton* const button : buttons)
        for (const QChar letter : button->text().toUpper()) {
            if (!letter.isLetter() || taken.contains(letter)) continue;
            taken += letter;
            button->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.unicode())));
            break;
        }
}

// The toolkit itself says that a label's name has changed. That alone is read to nobody who is
// somewhere else on the window.
void announce(Binding& binding, Label& outlet, QLabel* line) {
    binding.bind(outlet, line, [line, told = line->text()]() mutable {
        if (std::exchange(told, line->text()) == line->text()) return;
        if (line->text().isEmpty() || !line->isVisible()) return;
        QAccessibleEvent news(line, QAccessible::Alert);
        QAccessible::updateAccessibility(&news);
    });
}

Text_Label* status_line(Binding& binding, Label& outlet, QWidget* parent) {
    auto* const line = new Text_Label(parent);
    line->set_sentence();
    line->setAccessibleDescription(QStringLiteral("Status"));
    bind_label(binding, outlet, line);
    announce(binding, outlet, line);
    return line;
}

Text_Label* quiet_line(Binding& binding, Label& outlet, QWidget* parent) {
    auto* const line = new Text_Label(parent);
    line->set_sentence();
    make_quiet(line);
    bind_label(binding, outlet, line);
    announce(binding, outlet, line);
    return line;
}

QPushButton* refresh_button(const Window_Parts& parts, std::function<void()> run) {
    auto* const button = new QPushButton(QStringLiteral("Refresh"));
    button->setProperty("primary", true);
    button->setIcon(themed_icon(QStringLiteral("refresh"), Ink::on_accent));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    parts.guards.connect_button(button, &g_can_click_refresh, std::move(run));
    return button;
}

void set_tight(QBoxLayout* layout, int spacing) {
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
}

}  // namespace velk
