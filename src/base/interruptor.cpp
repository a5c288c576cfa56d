#include "base/interruptor.h"

#include <sys/socket.h>

#include <csignal>

namespace velk {

namespace {

thread_local Interruptor* this_threads_own = nullptr;

}  // namespace

void Interruptor::interrupt_what_is_registered() {
    if (socket_ >= 0) ::shutdown(socket_, SHUT_RDWR);
    if (child_ > 0) ::kill(child_, SIGTERM);
}

void Interruptor::cancel() {
    const std::lock_guard lock(mutex_);
    cancelled_ = true;
    interrupt_what_is_registered();
    wake_.notify_all();
}

bool Interruptor::cancelled() const {
    const std::lock_guard lock(mutex_);
    return cancelled_;
}

bool Interruptor::sleep_for(std::chrono::duration<double> time) {
    std::unique_lock lock(mutex_);
    return !wake_.wait_for(lock, time, [this] { return cancelled_; });
}

Interruptor& Interruptor::current() {
    static thread_local Interruptor never_cancelled;
    return this_threads_own != nullptr ? *this_threads_own : never_cancelled;
}

Interruptor::Use::Use(Interruptor& interruptor) : before_(this_threads_own) {
    this_threads_own = &interruptor;
}

Interruptor::Use::~Use() {
    this_threads_own = before_;
}

Interruptor::Socket::Socket(int descriptor) : interruptor_(current()) {
    const std::lock_guard lock(interruptor_.mutex_);
    before_ = interruptor_.socket_;
    interruptor_.socket_ = descriptor;
    if (interruptor_.cancelled_) interruptor_.interrupt_what_is_registered();
}

Interruptor::Socket::~Socket() {
    const std::lock_guard lock(interruptor_.mutex_);
    interruptor_.socket_ = before_;
}

Interruptor::Child::Child(pid_t child) : interruptor_(current()) {
    const std::lock_guard lock(interruptor_.mutex_);
    interruptor_.child_ = child;
    if (interruptor_.cancelled_) interruptor_.interrupt_what_is_registered();
}

Interruptor::Child::~Child() {
    const std::lock_guard lock(interruptor_.mutex_);
    interruptor_.child_ = 0;
}

}  // namespace velk
