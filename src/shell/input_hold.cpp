#include "shell/input_hold.h"

#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace velk {

namespace {

bool is_drag(QEvent::Type type) {
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

bool is_input(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::InputMethod:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::NativeGesture:
            return true;
        default:
            return is_drag(type);
    }
}

}  // namespace

void Input_Hold::hold(bool holds) {
    if (std::exchange(holds_, holds) == holds) return;
    held_.clear();
    show_waiting(holds);
    if (!holds) return qApp->removeEventFilter(this);
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->isVisible()) held_.emplace_back(window);
    qApp->installEventFilter(this);
}

// An event comes to the system's window first, then to the widget, and a shortcut to neither.
bool Input_Hold::is_held(const QObject* object) const {
    while (object && !object->isWidgetType() && !object->isWindowType()) object = object->parent();
    const auto* const widget = qobject_cast<const QWidget*>(object);
    return object && std::any_of(held_.begin(), held_.end(), [&](const QWidget* window) {
               return window &&
                      (widget ? widget->window() == window : window->windowHandle() == object);
           });
}

bool Input_Hold::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter && watched->isWindowType()) show_waiting(is_held(watched));
    if (!is_input(event->type()) || !is_held(watched)) return false;
    // The system's window keeps a tally of the buttons that are down.
    if (event->type() == QEvent::MouseButtonRelease && watched->isWindowType()) return false;
    // What is dragged over the window finds nobody there.
    event->setAccepted(!is_drag(event->type()));
    return true;
}

void Input_Hold::show_waiting(bool waiting) {
    if (std::exchange(shows_waiting_, waiting) == waiting) return;
    if (waiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

}  // namespace velk
