#pragma once

#include <QTimer>
#include <QWidget>

namespace velk {

/// A small arc that turns while something is waited for. What it is stands in words beside it.
class Busy_Spinner : public QWidget {
    Q_OBJECT

  public:
    explicit Busy_Spinner(QWidget* parent = nullptr);

    /// Shown and turning, or gone.
    void set_busy(bool busy);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QTimer timer_;
    int degrees_ = 0;
};

}  // namespace velk
