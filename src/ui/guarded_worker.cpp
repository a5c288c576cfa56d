#include "ui/guarded_worker.h"

#include <utility>

#include "ui/desktop.h"
#include "ui/worker.h"

namespace velk {

void Held_Flag::give_back() {
    if (Flag* const flag = std::exchange(flag_, nullptr)) desktop_.post([flag] { *flag = 1; });
}

bool start_guarded(Desktop& desktop, Flag& flag, const std::string& name,
                   std::function<void(Held_Flag&)> body) {
    if (!flag) return false;
    flag = 0;
    const bool started = Worker::start(name, [&desktop, &flag, body = std::move(body)] {
        Held_Flag held(desktop, flag);
        body(held);
    });
    if (!started) flag = 1;
    return started;
}

bool run_command(Desktop& desktop, const std::string& name, std::function<void()> body) {
    if (!desktop.takes_input()) return false;
    desktop.take_input(false);
    const bool started = Worker::start(name, [&desktop, body = std::move(body)] {
        body();
        desktop.post([&desktop] { desktop.take_input(true); });
    });
    if (!started) desktop.take_input(true);
    return started;
}

}  // namespace velk
