#include "shell/guards.h"

#include <QAbstractButton>
#include <QAction>
#include <utility>

namespace velk {

namespace {

/// Nothing for a control that is always enabled.
std::function<bool()> while_up(const Flag* guard) {
    if (!guard) return {};
    return [guard] { return *guard != 0; };
}

}  // namespace

void Guards::connect_button(QAbstractButton* button, const Flag* guard, std::function<void()> run) {
    connect(button, &QAbstractButton::clicked, this, [this, run = std::move(run)] {
        run();
        look_again();
    });
    guard_with(button, while_up(guard));
}

void Guards::connect_action(QAction* action, const Flag* guard, std::function<void()> run) {
    connect_action(action, while_up(guard), std::move(run));
}

void Guards::connect_action(QAction* action, std::function<bool()> may, std::function<void()> run) {
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] {
        run();
        look_again();
    });
    guard_with(action, std::move(may));
}

void Guards::guard_with(QObject* control, std::function<bool()> may) {
    if (!may) return;
    guarded_.push_back({control, std::move(may)});
    look_at(guarded_.back());
}

void Guards::look_at(const Guarded& guarded) {
    if (guarded.control) guarded.control->setProperty("enabled", guarded.may());
}

void Guards::look_again() {
    for (const Guarded& guarded : guarded_) look_at(guarded);
    for (const auto& look : others_) look();
}

}  // namespace velk
