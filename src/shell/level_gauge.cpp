#include "shell/level_gauge.h"

#include <QPainter>

#include "shell/look.h"

namespace velk {

namespace {

constexpr QSize bar_size{60, 10};
constexpr QSize battery_size{40, 18};
constexpr int battery_pole = 3;
constexpr int battery_wall = 3;

}  // namespace

Level_Gauge::Level_Gauge(Shape shape, int maximum, QWidget* parent)
    : QProgressBar(parent), shape_(shape) {
    setRange(0, maximum);
    setValue(0);
    setTextVisible(false);
    const auto across = shape == Shape::bar ? QSizePolicy::Expanding : QSizePolicy::Fixed;
    setSizePolicy(across, QSizePolicy::Fixed);
}

QSize Level_Gauge::sizeHint() const {
    return shape_ == Shape::bar ? bar_size : battery_size;
}

void Level_Gauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (shape_ == Shape::bar)
        paint_bar(painter);
    else
        paint_battery(painter);
}

// Only the filled part: the ground of a bar is a control of its own.
void Level_Gauge::paint_bar(QPainter& painter) const {
    if (value() <= 0) return;
    QRectF filled = rect();
    const double round = filled.height() / 2;
    filled.setWidth(std::max(filled.height(), filled.width() * value() / maximum()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::now().accent_text);
    painter.drawRoundedRect(filled, round, round);
}

void Level_Gauge::paint_battery(QPainter& painter) const {
    const Look look = Look::now();
    const QRectF body = QRectF(rect()).adjusted(0.75, 0.75, -battery_pole - 0.75, -0.75);
    painter.setPen(QPen(look.muted, 1.5));
    painter.drawRoundedRect(body, 4, 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.muted);
    painter.drawRoundedRect(QRectF(body.right() + 1, height() / 2.0 - 3.5, battery_pole, 7), 1, 1);
    painter.setBrush(look.accent_text);
    const QRectF room = body.adjusted(battery_wall, battery_wall, -battery_wall, -battery_wall);
    const double step = (room.width() + 1) / maximum();
    for (int i = 0; i < value(); ++i)
        painter.drawRoundedRect(QRectF(room.left() + i * step, room.top(), step - 1, room.height()),
                                1, 1);
}

}  // namespace velk
