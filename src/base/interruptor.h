// What a worker is blocked in, so that closing the window can end every wait.
//
// A worker thread has one Interruptor; the code it runs finds it with current(), registers the
// socket or the child that it is about to block on, and unregisters it afterwards. cancel() may
// come from any thread, is sticky, and ends a wait that is under way as well as any later one.
// A thread without an Interruptor of its own is never cancelled.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace velk {

class Interruptor {
  public:
    Interruptor() = default;
    Interruptor(const Interruptor&) = delete;
    Interruptor& operator=(const Interruptor&) = delete;

    /// Shuts down the registered socket, ends the registered child, wakes a sleeper. Any thread.
    void cancel();
    bool cancelled() const;

    /// Sleeps; false when it was cut short by cancel() (or cancelled before).
    bool sleep_for(std::chrono::duration<double> time);

    /// The calling thread's own, or one that nobody cancels.
    static Interruptor& current();

    /// Makes an Interruptor the calling thread's own while it lives.
    class Use {
      public:
        explicit Use(Interruptor& interruptor);
        ~Use();
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

      private:
        Interruptor* before_;
    };

    /// Registers the socket that the calling thread is about to block on. The socket stays the
    /// caller's to close, after this has gone.
    class Socket {
      public:
        explicit Socket(int descriptor);
        ~Socket();
        Socket(const Socket&) = delete;
        Socket& operator=(const Socket&) = delete;

      private:
        Interruptor& interruptor_;
        int before_;
    };

    /// Registers the child that the calling thread waits for; it is reaped only after this has
    /// gone, so that its number still is its own.
    class Child {
      public:
        explicit Child(pid_t child);
        ~Child();
        Child(const Child&) = delete;
        Child& operator=(const Child&) = delete;

      private:
        Interruptor& interruptor_;
    };

  private:
    void interrupt_what_is_registered();

    mutable std::mutex mutex_;
    std::condition_variable wake_;
    bool cancelled_ = false;
    int socket_ = -1;
    pid_t child_ = 0;
};

}  // namespace velk
