#include "ui/ordered_queue.h"

#include <utility>

namespace velk {

bool Ordered_Queue::post(Closure closure) {
    bool must_wake = false;
    {
        const std::lock_guard lock(mutex_);
        if (closed_) return false;
        waiting_.push_back(std::move(closure));
        must_wake = !std::exchange(woken_, true);
    }
    if (must_wake) wake_();
    return true;
}

void Ordered_Queue::run_turn(std::chrono::steady_clock::duration time) {
    const auto end = std::chrono::steady_clock::now() + time;
    for (;;) {
        Closure next;
        {
            const std::lock_guard lock(mutex_);
            if (waiting_.empty()) {
                woken_ = false;
                return;
            }
            next = std::move(waiting_.front());
            waiting_.pop_front();
        }
        next();
        if (std::chrono::steady_clock::now() >= end) break;
    }
    {
        const std::lock_guard lock(mutex_);
        if (waiting_.empty()) {
            woken_ = false;
            return;
        }
    }
    wake_();
}

void Ordered_Queue::close() {
    std::deque<Closure> dropped;  // outlives the lock: what a closure owns may post when it goes
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        dropped.swap(waiting_);
    }
}

bool Ordered_Queue::closed() const {
    const std::lock_guard lock(mutex_);
    return closed_;
}

}  // namespace velk
