// The colours of the window, made from the desktop's own.
#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPalette>
#include <QString>

namespace velk {

/// One accent colour and what goes with it, for a light and for a dark desktop alike.
struct Look {
    QColor window, card, stripe;   // grounds
    QColor text, muted, disabled;  // texts; the first two read well on every ground
    QColor line, edge;             // between things, and around things that can be pressed
    QColor accent, accent_hover, on_accent;  // a filled control and its text
    QColor accent_text;                      // the accent where it is a line or a text on a ground
    QColor warning, on_warning;              // the ground of a warning and its text
    QColor pressed;
    QColor toolbar, toolbar_hover, toolbar_text;

    static Look of(const QPalette& palette);
    /// That of the desktop's palette now.
    static Look now();

    /// The style sheet with this look's colours in the places of its "@name@" words.
    QString fill_in(QString style_sheet) const;
};

/// How well a text reads on a ground: 1 for equal colours, 21 for black on white.
double contrast(const QColor& text, const QColor& ground);

/// Dresses the application now, and again when the desktop changes its colours.
class Look_Keeper : public QObject {
    Q_OBJECT

  public:
    Look_Keeper();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void dress();
    static void colour_placeholders();
};

/// The system font, larger or smaller, perhaps bold.
QFont scaled_font(double factor, bool bold = false);

}  // namespace velk
