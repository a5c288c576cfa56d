#include "shell/qt_desktop.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>

#include "shell/panels.h"

namespace velk {

namespace {

const QEvent::Type wake_up = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

// The event carries nothing: what is to be done was handed over under the queue's own lock.
void Qt_Desktop::wake() {
    QCoreApplication::postEvent(this, new QEvent(wake_up));
}

bool Qt_Desktop::event(QEvent* event) {
    if (event->type() != wake_up) return QObject::event(event);
    run_turn();
    emit turn_ended();
    return true;
}

void Qt_Desktop::open_alert(const Alert& alert, std::function<void(int)> answered) {
    if (alerts_dropped_)
        answered(alert.last_button());
    else
        open_alert_box(window_, alert, std::move(answered));
}

void Qt_Desktop::drop_alerts() {
    alerts_dropped_ = true;
    close_alert_boxes();
}

void Qt_Desktop::beep() {
    QApplication::beep();
}

// An editor that loses the focus writes its cell and goes.
bool Qt_Desktop::end_editing() {
    QWidget* const focus = window_ ? window_->focusWidget() : nullptr;
    QWidget* const around = focus ? focus->parentWidget() : nullptr;
    auto* const table = qobject_cast<QAbstractItemView*>(around ? around->parentWidget() : nullptr);
    if (table) table->setFocus();
    return true;
}

void Qt_Desktop::terminate() {
    QCoreApplication::quit();
}

}  // namespace velk
