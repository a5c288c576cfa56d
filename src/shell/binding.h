// Keeps widgets up to date with the program's outlets.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "ui/outlets.h"

namespace velk {

/// Remembers which outlets have changed and shows each of them once per turn of the event loop, so
/// that a status line that changes 20,000 times costs no more than the times it is seen.
class Binding : public QObject {
    Q_OBJECT

  public:
    /// Runs `show` now, and after changes of the outlet as long as `target` and this live.
    void bind(Outlet& outlet, QObject* target, std::function<void()> show);

    /// Shows now what has changed, instead of at the end of the turn.
    void flush();

  protected:
    bool event(QEvent* event) override;

  private:
    struct Bound;
    void mark(const std::shared_ptr<Bound>& bound);

    std::vector<std::shared_ptr<Bound>> bounds_;
    std::vector<std::shared_ptr<Bound>> changed_;
};

}  // namespace velk
