#include "ui/unix_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace velk {

namespace {

// A handler may do next to nothing, but it may write to a pipe: a byte, the signal's number.
std::array<std::atomic<int>, NSIG> pipe_of_signal;

void tell(int number) {
    const int before = errno;
    const char byte = static_cast<char>(number);
    const int pipe = pipe_of_signal[static_cast<std::size_t>(number)];
    [[maybe_unused]] const ssize_t written = pipe < 0 ? 0 : write(pipe, &byte, 1);
    errno = before;
}

bool handle(int number, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    return sigaction(number, &action, nullptr) == 0;
}

std::array<int, 2> open_pipe() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return {-1, -1};
    return ends;
}

}  // namespace

Unix_Signals::Unix_Signals(Desktop& desktop, std::vector<int> numbers,
                           std::function<void(int)> arrived)
    : Unix_Signals(desktop, std::move(numbers), std::move(arrived), open_pipe()) {}

Unix_Signals::Unix_Signals(Desktop& desktop, std::vector<int> numbers,
                           std::function<void(int)> arrived, std::array<int, 2> pipe)
    : numbers_(std::move(numbers)),
      arrived_(std::move(arrived)),
      reader_(pipe[0]),
      writer_(pipe[1]) {
    if (!reader_.is_open()) return;
    watch_ = desktop.watch(reader_.number(), [this] { read_all(); });
    established_ = std::all_of(numbers_.begin(), numbers_.end(), [this](int number) {
        pipe_of_signal.at(static_cast<std::size_t>(number)) = writer_.number();
        return handle(number, tell);
    });
}

Unix_Signals::~Unix_Signals() {
    if (!reader_.is_open()) return;
    for (const int number : numbers_) {
        handle(number, SIG_DFL);
        pipe_of_signal.at(static_cast<std::size_t>(number)) = -1;
    }
}

void Unix_Signals::read_all() {
    char bytes[16];
    for (ssize_t count; (count = read(reader_.number(), bytes, sizeof bytes)) > 0;)
        std::for_each(bytes, bytes + count, arrived_);
}

}  // namespace velk
