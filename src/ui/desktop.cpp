#include "ui/desktop.h"

#include <cassert>

#include "base/interruptor.h"
#include "ui/dialog.h"
#include "ui/outlets.h"

namespace velk {

/// The other end of what is awaited. The wait also ends when nobody is left who could bring it
/// about: the gate has closed and the queue has dropped the closure that held this.
class Desktop::Promise {
  public:
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
    const auto done = std::make_shared<Promise::Awaited>();
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

/// Lets `open` show a box on the user-interface thread, and waits for what it answers.
template <class Answer>
Answer Desktop::run_box(Answer when_closing,
                        std::function<void(std::function<void(Answer)>)> open) {
    assert(!on_ui_thread());
    struct Answered {
        std::mutex mutex;
        Answer answer;
    };
    const auto answered = std::make_shared<Answered>();
    answered->answer = std::move(when_closing);
    const auto done = std::make_shared<Promise::Awaited>();
    post([this, open = std::move(open), answered, promise = std::make_shared<Promise>(done)] {
        std::erase_if(open_boxes_, [](const auto& box) { return box.expired(); });
        open_boxes_.push_back(promise);
        open([answered, promise](Answer answer) {
            {
                const std::lock_guard lock(answered->mutex);
                answered->answer = std::move(answer);
            }
            promise->keep();
        });
    });
    done->wait();
    const std::lock_guard lock(answered->mutex);
    return answered->answer;
}

int Desktop::run_alert(const Alert& alert) {
    return run_box<int>(alert.last_button(), [this, alert](std::function<void(int)> answered) {
        open_alert(alert, std::move(answered));
    });
}

std::string Desktop::run_file_panel(const File_Panel& panel) {
    return run_box<std::string>({}, [this, panel](std::function<void(std::string)> chosen) {
        open_file_panel(panel, std::move(chosen));
    });
}

void Desktop::open_dialog(Dialog& dialog, std::function<void()> closed) {
    dialog.bOK = false;
    show_dialog(dialog, std::move(closed));
}

void Desktop::take_input(bool takes) {
    takes_input_ = takes;
    input_changed();
}

void Desktop::close_gate() {
    queue_.close();
    // Boxes that the window still shows get no answer any more.
    for (const std::weak_ptr<Promise>& open : open_boxes_)
        if (const auto promise = open.lock()) promise->keep();
    open_boxes_.clear();
}

}  // namespace velk
