// The program's drawings, in the colours of the desktop's theme.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace velk {

/// False when this system has no reader for drawings: a plugin, which no linker misses.
bool can_read_drawings();
constexpr const char* no_drawings = "the icons cannot be drawn: Qt's plugin for SVG is missing";

/// An icon's drawing in one colour; `ratio` is the screen's device pixels per pixel. Empty when
/// there is no such drawing, or no reader for it on this system.
QPixmap icon_pixmap(const QString& name, QSize size, qreal ratio, const QColor& ink);

/// The colour of a button's icon: that of texts or of quiet texts, the accent, or that of texts on
/// the accent.
enum class Ink { text, muted, accent, on_accent };

/// An icon for a button, which follows the theme and the button's state. Empty for a name without
/// a drawing.
QIcon themed_icon(const QString& name, Ink ink = Ink::text);

/// A picture by its file's name ("usbLine.png", or "phone" for one that is only drawn), as large
/// as fits into `size`. A drawing of that name takes on the theme's colours; a finished picture
/// does not.
QPixmap picture(const QString& name, QSize size, qreal ratio);

}  // namespace velk
