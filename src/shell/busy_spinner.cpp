#include "shell/busy_spinner.h"

#include <QPainter>

#include "shell/look.h"

namespace velk {

namespace {

constexpr int size_of_spinner = 16;
constexpr int milliseconds_of_a_step = 40;
constexpr int degrees_of_a_step = 15;
constexpr int degrees_of_the_arc = 100;
constexpr int sixteenths = 16;  // the unit of the painter's angles

}  // namespace

Busy_Spinner::Busy_Spinner(QWidget* parent) : QWidget(parent) {
    setFixedSize(size_of_spinner, size_of_spinner);
    timer_.setInterval(milliseconds_of_a_step);
    connect(&timer_, &QTimer::timeout, this, [this] {
        degrees_ = (degrees_ + degrees_of_a_step) % 360;
        update();
    });
    hide();
}

void Busy_Spinner::set_busy(bool busy) {
    setVisible(busy);
    if (!busy)
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start();
}

void Busy_Spinner::paintEvent(QPaintEvent*) {
    const Look look = Look::now();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setPen(QPen(look.line, 2));
    painter.drawEllipse(ring);
    painter.setPen(QPen(look.accent_text, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, -degrees_ * sixteenths, degrees_of_the_arc * sixteenths);
}

}  // namespace velk
