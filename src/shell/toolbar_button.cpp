#include "shell/toolbar_button.h"

#include <QFocusEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "shell/look.h"
#include "shell/pictures.h"

namespace velk {

namespace {

constexpr int icon_size = 26;
constexpr int space = 8;
constexpr int least_width = 76;
constexpr int most_width = 150;

}  // namespace

Toolbar_Button::Toolbar_Button(QString icon, QWidget* parent)
    : QAbstractButton(parent), icon_(std::move(icon)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void Toolbar_Button::set_caption_colour(const QColor& colour) {
    colour_ = colour;
    update();
}

void Toolbar_Button::set_current(bool current) {
    current_ = current;
    setAccessibleDescription(current ? QStringLiteral("Shown now") : QString());
    update();
}

QSize Toolbar_Button::sizeHint() const {
    const int wanted = fontMetrics().horizontalAdvance(text()) + 3 * space;
    return {std::clamp(wanted, least_width, most_width),
            icon_size + fontMetrics().height() + 3 * space};
}

QSize Toolbar_Button::minimumSizeHint() const {
    return {least_width, sizeHint().height()};
}

void Toolbar_Button::enterEvent(QEnterEvent*) {
    update();
}

void Toolbar_Button::leaveEvent(QEvent*) {
    update();
}

void Toolbar_Button::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    reached_by_key_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    QAbstractButton::focusInEvent(event);
}

void Toolbar_Button::paint_ground(QPainter& painter) const {
    const Look look = Look::now();
    const QRectF ground = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.setPen(Qt::NoPen);
    if (isDown() || underMouse() || current_) {
        painter.setBrush(look.toolbar_hover);
        painter.drawRoundedRect(ground, 6, 6);
    }
    if (current_) {
        painter.setBrush(QColor(0x6f, 0x9c, 0xff));
        painter.drawRoundedRect(QRectF(width() / 2.0 - 14, height() - 6, 28, 3), 1.5, 1.5);
    }
    if (hasFocus() && reached_by_key_) {
        painter.setPen(QPen(look.toolbar_text, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ground, 6, 6);
    }
}

void Toolbar_Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_ground(painter);
    const QColor ink = colour_.isValid() ? colour_ : Look::now().toolbar_text;
    painter.drawPixmap((width() - icon_size) / 2, space,
                       icon_pixmap(icon_, {icon_size, icon_size}, devicePixelRatioF(), ink));
    painter.setPen(ink);
    const QRect room = rect().adjusted(4, icon_size + space + 4, -4, -space + 2);
    painter.drawText(room,
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine | Qt::TextHideMnemonic,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

}  // namespace velk
