#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace velk {

/// Keeps mouse, keys and shortcuts from the windows that stand on the screen, which go on painting
/// and can be closed. Windows that open meanwhile are free.
class Input_Hold : public QObject {
    Q_OBJECT

  public:
    ~Input_Hold() override { hold(false); }

    /// Holds what is on the screen now, or lets it all go.
    void hold(bool holds);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool is_held(const QObject* object) const;
    void show_waiting(bool waiting);

    std::vector<QPointer<QWidget>> held_;
    bool holds_ = false;
    bool shows_waiting_ = false;  // the mouse has the shape of waiting
};

}  // namespace velk
