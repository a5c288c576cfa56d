#include "shell/picture_view.h"

#include <QPainter>
#include <utility>

#include "shell/look.h"
#include "shell/pictures.h"

namespace velk {

Picture_View::Picture_View(QSize size, QWidget* parent) : QWidget(parent) {
    setFixedSize(size);
}

void Picture_View::show_picture(const QString& name) {
    name_ = name;
    update();
}

void Picture_View::paintEvent(QPaintEvent*) {
    const QPixmap pixmap = picture(name_, size(), devicePixelRatioF());
    if (pixmap.isNull()) return;
    QRectF place(QPointF(), pixmap.deviceIndependentSize());
    place.moveCenter(QRectF(rect()).center());
    QPainter(this).drawPixmap(place.topLeft(), pixmap);
}

Icon_View::Icon_View(QString name, int size, QWidget* parent)
    : QWidget(parent), name_(std::move(name)) {
    setFixedSize(size, size);
}

void Icon_View::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(
        0, 0, icon_pixmap(name_, size(), devicePixelRatioF(), Look::now().accent_text));
}

}  // namespace velk
