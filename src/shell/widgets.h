// How each kind of outlet is shown, and the few pieces that every page is built of.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <string>

#include "shell/binding.h"
#include "shell/guards.h"
#include "ui/command.h"
#include "ui/outlets.h"

class QAbstractButton;
class QAction;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QWidget;

namespace velk {

class Level_Gauge;
class MainDocument;
class Picture_View;
class Text_Label;

/// What every piece of the window is built with.
struct Window_Parts {
    MainDocument& document;
    Binding& binding;
    Guards& guards;
};

// Free distances between things, in pixels.
inline constexpr int small_space = 8;
inline constexpr int space_between = 16;
inline constexpr int large_space = 24;

/// UTF-8, or whatever bytes there are: what is no text shows as a replacement character.
QString shown(const std::string& text);

// Each keeps the widget up to date with its outlet, and names it after the outlet.
void bind_label(Binding& binding, Label& outlet, Text_Label* label);
/// A text that may take several lines.
void bind_text(Binding& binding, Label& outlet, QLabel* label);
void bind_button(Binding& binding, Button& outlet, QAbstractButton* button);
void bind_gauge(Binding& binding, Level_Indicator& outlet, Level_Gauge* gauge);
void bind_image(Binding& binding, Image& outlet, Picture_View* image);
/// A text of any length, to be read. Its accessible name is the text, as a label's is.
void bind_reading(Binding& binding, Label& outlet, QTextEdit* edit);
/// One line of the same kind.
void bind_reading(Binding& binding, Label& outlet, QLineEdit* edit);
/// What a person types reaches the outlet at once.
void bind_field(Binding& binding, Text_Field& outlet, QLineEdit* edit);
void bind_field(Binding& binding, Text_Field& outlet, QTextEdit* edit);

/// A caption that never changes: small and quiet.
QLabel* quiet_caption(const QString& text);
/// Marks a label as less important than what stands beside it.
void make_quiet(QLabel* label);

/// The button of a command, without an icon where the command names none.
QPushButton* command_button(const Command& command, Guards& guards, QWidget* parent);

/// Gives each button a key: Alt with the first letter of its caption that none before it has.
void give_keys(const QList<QAbstractButton*>& buttons);

/// The menu entry of a command, with its keys.
QAction* command_action(const Command& command, Guards& guards, QWidget* parent);

/// A Refresh button as every page of the connection has one; disabled during an attempt.
QPushButton* refresh_button(const Window_Parts& parts, std::function<void()> run);

/// Has a screen reader told when the line, which shows the outlet already, comes to say something
/// else.
void announce(Binding& binding, Label& outlet, QLabel* line);

/// The line in which a section or a dialog says how things stand.
Text_Label* status_line(Binding& binding, Label& outlet, QWidget* parent);

/// The line under it, which says what the status line does not.
Text_Label* quiet_line(Binding& binding, Label& outlet, QWidget* parent);

/// No margins, this much between the items.
void set_tight(QBoxLayout* layout, int spacing);

}  // namespace velk
