// Worker threads: the only place of the program that makes one.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace velk {

class Worker {
  public:
    /// Runs `body` on a thread of its own, which has an Interruptor of its own. `name` is the
    /// thread's name (the system shows its first 15 characters). Any thread may call. When the
    /// system has no thread to give, that is logged, the body does not run, and this gives false.
    static bool start(const std::string& name, std::function<void()> body);

    /// How many are running.
    static int running();

    /// Interrupts what is running: every wait ends, and so does every later one of these workers.
    static void interrupt_all();
    /// The same for the workers of one name.
    static void interrupt(const std::string& name);

    /// Interrupts every worker and waits for them. True when all have ended in time. When false,
    /// the rest still runs and the process must end without waiting for it.
    static bool stop_all(std::chrono::milliseconds time);
};

}  // namespace velk
