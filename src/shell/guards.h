// Buttons and menu entries that are disabled while the action they start may not start.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <utility>
#include <vector>

#include "ui/section.h"

class QAbstractButton;
class QAction;

namespace velk {

class Guards : public QObject {
    Q_OBJECT

  public:
    /// A click on the button runs `run`. The button is disabled while `guard` is 0; a button
    /// without a guard is always enabled.
    void connect_button(QAbstractButton* button, const Flag* guard, std::function<void()> run);
    /// The same for an entry of a menu.
    void connect_action(QAction* action, const Flag* guard, std::function<void()> run);
    /// Enabled while `may` gives true.
    void connect_action(QAction* action, std::function<bool()> may, std::function<void()> run);

    /// Calls `look` whenever a flag may have changed; both live as long as the window.
    void on_look(std::function<void()> look) { others_.push_back(std::move(look)); }

    /// Looks at all flags again; to be called when something may have changed one.
    void look_again();

  private:
    struct Guarded {
        QPointer<QObject> control;  // something that can be enabled
        std::function<bool()> may;
    };
    void guard_with(QObject* control, std::function<bool()> may);
    static void look_at(const Guarded& guarded);

    std::vector<Guarded> guarded_;
    std::vector<std::function<void()>> others_;
};

}  // namespace velk
