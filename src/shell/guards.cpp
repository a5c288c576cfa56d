#include "shell/guards.h"

#include <QAbstractButton>
#include <utility>

namespace velk {

void Guards::connect_button(QAbstractButton* button, const Flag* guard, std::function<void()> run) {
    connect(button, &QAbstractButton::clicked, this, [this, run = std::move(run)] {
        run();
        look_again();
    });
    if (!guard) return;
    guarded_.push_back({button, guard});
    button->setEnabled(*guard != 0);
}

void Guards::look_again() {
    for (const Guarded& guarded : guarded_)
        if (guarded.button) guarded.button->setEnabled(*guarded.guard != 0);
    for (const auto& look : others_) look();
}

}  // namespace velk
