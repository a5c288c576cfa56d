#include "shell/unix_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <utility>

namespace velk {

namespace {

constexpr int ending_signals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler may do next to nothing, but it may write to a pipe.
int pipe_ends[2] = {-1, -1};

void tell(int) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(pipe_ends[1], &byte, 1);
    errno = before;
}

void handle_with(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : ending_signals) sigaction(number, &action, nullptr);
}

}  // namespace

Unix_Signals::Unix_Signals(std::function<void()> end) {
    if (pipe2(pipe_ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* const arrived = new QSocketNotifier(pipe_ends[0], QSocketNotifier::Read, this);
    connect(arrived, &QSocketNotifier::activated, this, [end = std::move(end)] {
        char bytes[16];
        while (read(pipe_ends[0], bytes, sizeof bytes) > 0) {
        }
        end();
    });
    handle_with(tell);
}

Unix_Signals::~Unix_Signals() {
    if (pipe_ends[0] < 0) return;
    handle_with(SIG_DFL);
    delete findChild<QSocketNotifier*>();
    for (int& descriptor : pipe_ends) close(std::exchange(descriptor, -1));
}

}  // namespace velk
