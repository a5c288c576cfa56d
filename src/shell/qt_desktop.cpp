#include "shell/qt_desktop.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSocketNotifier>
#include <QWindow>
#include <algorithm>

#include "shell/dialog_window.h"
#include "shell/panels.h"

namespace velk {

Qt_Desktop::Qt_Desktop() {
    connect(this, &Qt_Desktop::woken, this, &Qt_Desktop::turn, Qt::QueuedConnection);
}

// Nothing goes with it: what is to be done was handed over under the queue's own lock.
void Qt_Desktop::wake() {
    emit woken();
}

void Qt_Desktop::turn() {
    run_turn();
    emit turn_ended();
}

void Qt_Desktop::set_window(QWidget* window) {
    window_ = window;
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &Qt_Desktop::lead_keys_to_front,
            Qt::UniqueConnection);
}

void Qt_Desktop::lead_keys_to_front(const QWindow* focused) const {
    QWidget* const box = QApplication::activeModalWidget();
    if (!box || !focused || !window_ || box->windowHandle() == focused) return;
    const auto is_focused = [focused](const QWidget* window) {
        return window && window->windowHandle() == focused;
    };
    if (is_focused(window_) || std::any_of(boxes_.begin(), boxes_.end(), is_focused))
        box->activateWindow();
}

QWidget* Qt_Desktop::front() const {
    QWidget* const box = QApplication::activeModalWidget();
    return box ? box : window_.data();
}

void Qt_Desktop::keep(QDialog* box) {
    std::erase_if(boxes_, [](const QPointer<QDialog>& old) { return old.isNull(); });
    boxes_.emplace_back(box);
}

void Qt_Desktop::open_alert(const Alert& alert, std::function<void(int)> answered) {
    if (boxes_dropped_)
        answered(alert.last_button());
    else
        keep(open_alert_box(front(), alert, std::move(answered)));
}

void Qt_Desktop::open_file_panel(const File_Panel& panel, std::function<void(std::string)> chosen) {
    if (boxes_dropped_)
        chosen({});
    else
        keep(open_file_box(front(), panel, std::move(chosen)));
}

void Qt_Desktop::show_dialog(Dialog& dialog, std::function<void()> closed) {
    if (boxes_dropped_) return closed();
    auto* const window = new Dialog_Window(dialog, front());
    keep(window);
    connect(this, &Qt_Desktop::turn_ended, window, &Dialog_Window::look_at_guards);
    connect(window, &QDialog::finished, window, std::move(closed));
    window->open();
}

// A box may be about to act on the click that stands behind this: it goes from the screen, but
// lives until the event loop is reached again.
void Qt_Desktop::drop_boxes() {
    boxes_dropped_ = true;
    while (!boxes_.empty()) {
        const QPointer<QDialog> box = boxes_.back();
        boxes_.pop_back();
        if (!box) continue;
        disconnect(box, &QDialog::finished, nullptr, nullptr);
        for (auto* const before : box->findChildren<QDialog*>(Qt::FindDirectChildrenOnly))
            if (before->isVisible()) before->reject();
        box->reject();
    }
}

// It may be given up by the very closure that it calls: it is silent at once and goes later.
Desktop::Watch Qt_Desktop::watch(int descriptor, std::function<void()> readable) {
    auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, readable = std::move(readable)] {
        readable();
        emit turn_ended();
    });
    return {notifier, [](QSocketNotifier* ended) {
                ended->setEnabled(false);
                ended->deleteLater();
            }};
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
