// The window system behind the program's Desktop.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "ui/desktop.h"

namespace velk {

/// Made after the QApplication and before the document; outlives both document and window.
class Qt_Desktop : public QObject, public Desktop {
    Q_OBJECT

  public:
    /// The window that alerts belong to. Without one they stand alone.
    void set_window(QWidget* window) { window_ = window; }

    /// The window is closing: open alerts go, which lets the workers go that asked, and alerts
    /// that still come are answered as if the person had pressed Escape.
    void drop_alerts();

    void open_alert(const Alert& alert, std::function<void(int)> answered) override;
    void beep() override;
    bool end_editing() override;
    void terminate() override;

  signals:
    /// A turn of the queue is over: what its closures changed can be looked at again.
    void turn_ended();

  protected:
    void wake() override;
    bool event(QEvent* event) override;

  private:
    QPointer<QWidget> window_;
    bool alerts_dropped_ = false;
};

}  // namespace velk
