// The one ordered way from the workers to the user-interface thread.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>

namespace velk {

class Ordered_Queue {
  public:
    using Closure = std::function<void()>;

    /// `wake` asks the event loop of the user-interface thread to call run_turn() soon. It may be
    /// called from any thread, and is called once until that turn has come.
    explicit Ordered_Queue(std::function<void()> wake) : wake_(std::move(wake)) {}

    /// Any thread. False when the queue is closed: the closure is dropped.
    bool post(Closure closure);

    /// User-interface thread. Runs closures in the order they were posted until none is left or
    /// the time is used up; asks to be woken again when some are left.
    void run_turn(std::chrono::steady_clock::duration time = std::chrono::milliseconds(8));

    /// Drops what waits and refuses what comes later.
    void close();
    bool closed() const;

  private:
    std::function<void()> wake_;
    mutable std::mutex mutex_;
    std::deque<Closure> waiting_;
    bool woken_ = false;
    bool closed_ = false;
};

}  // namespace velk
