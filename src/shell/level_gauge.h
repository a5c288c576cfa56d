#pragma once

#include <QProgressBar>

namespace velk {

/// A gauge from 0 to its maximum: a bar, or a battery of a few steps. Values outside are drawn
/// empty or full; what the value is below 0 is told by nobody.
class Level_Gauge : public QProgressBar {
    Q_OBJECT

  public:
    enum class Shape { bar, battery };

    Level_Gauge(Shape shape, int maximum, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paint_bar(QPainter& painter) const;
    void paint_battery(QPainter& painter) const;

    Shape shape_;
};

}  // namespace velk
