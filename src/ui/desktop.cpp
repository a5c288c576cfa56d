#include "ui/desktop.h"

#include <atomic>
#include <cassert>

#include "base/interruptor.h"
#include "ui/outlets.h"

namespace velk {

namespace {

/// Something that one thread waits for.
class Awaited {
  public:
    void wait() {
        std::unique_lock lock(mutex_);
        wake_.wait(lock, [this] { return has_come_; });
    }
    void come() {
        const std::lock_guard lock(mutex_);
        has_come_ = true;
        wake_.notify_all();
    }

  private:
    std::mutex mutex_;
    std::condition_variable wake_;
    bool has_come_ = false;
};

}  // namespace

/// The other end of what is awaited. The wait also ends when nobody is left who could bring it
/// about: the gate has closed and the queue has dropped the closure that held this.
class Desktop::Promise {
  public:
    explicit Promise(std::shared_ptr<Awaited> awaited) : awaited_(std::move(awaited)) {}
    ~Promise() { keep(); }
    Promise(const Promise&) = delete;
    Promise& operator=(const Promise&) = delete;
    void keep() { awaited_->come(); }

  private:
    std::shared_ptr<Awaited> awaited_;
};

Desktop::Desktop() : queue_([this] { wake(); }) {
    this_is_the_ui_thread();
}

void Desktop::perform(Closure closure) {
    if (on_ui_thread())
        closure();
    else
        post(std::move(closure));
}

void Desktop::run_and_wait(Closure closure) {
    if (on_ui_thread()) {
        closure();
        return;
    }
    const auto done = std::make_shared<Awaited>();
    // The closure refers to the waiting caller's locals: it is either run while the caller waits
    // or dropped, which lets the caller go.
    post([closure = std::move(closure), promise = std::make_shared<Promise>(done)] {
        closure();
        promise->keep();
    });
    done->wait();
}

bool Desktop::sleep(double seconds) {
    return Interruptor::current().sleep_for(std::chrono::duration<double>(seconds));
}

int Desktop::run_alert(const Alert& alert) {
    assert(!on_ui_thread());
    const auto answer = std::make_shared<std::atomic<int>>(alert.last_button());
    const auto done = std::make_shared<Awaited>();
    post([this, alert, answer, promise = std::make_shared<Promise>(done)] {
        std::erase_if(open_alerts_, [](const auto& open) { return open.expired(); });
        open_alerts_.push_back(promise);
        open_alert(alert, [answer, promise](int button) {
            *answer = button;
            promise->keep();
        });
    });
    done->wait();
    return *answer;
}

void Desktop::close_gate() {
    queue_.close();
    // Alerts that the window still shows get no answer any more.
    for (const std::weak_ptr<Promise>& open : open_alerts_)
        if (const auto promise = open.lock()) promise->keep();
    open_alerts_.clear();
}

}  // namespace velk
