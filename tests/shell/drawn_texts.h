// The texts on a window as they are drawn, and the ground that each of them stands on.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <vector>

class QWidget;

namespace velk {

struct Drawn_Text {
    QString text;
    QRect place;         // the part of it that is in sight, on the window
    QColor ink, ground;  // as they stand on the screen
};

/// Every text that the window, or whatever else stands alone on the screen, draws for itself and
/// its children, whoever draws it: a label, a style, a delegate.
std::vector<Drawn_Text> drawn_texts(QWidget& window);

}  // namespace velk
