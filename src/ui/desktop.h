// The seam between the program and the window system: the one ordered queue, questions to the
// person, and the few things only a window system can do.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "ui/ordered_queue.h"

namespace velk {

enum class Alert_Style { warning, informational };

/// A modal box with a title, a text and buttons from first to last. The last one is the one that
/// changes nothing: Return, Escape and closing the box press it.
struct Alert {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;
    Alert_Style style = Alert_Style::warning;

    int last_button() const { return static_cast<int>(buttons.size()) - 1; }
};

class Desktop {
  public:
    using Closure = Ordered_Queue::Closure;

    Desktop();
    virtual ~Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // --- any thread -------------------------------------------------------------------------

    /// Queues the closure for the user-interface thread; dropped once the gate is closed.
    void post(Closure closure) { queue_.post(std::move(closure)); }

    /// Runs the closure at once on the user-interface thread, and posts it from any other.
    void perform(Closure closure);

    /// Runs `question` on the user-interface thread, after all that was posted before, and gives
    /// its answer. Gives a default-made value when the gate closes meanwhile.
    template <class Question>
    auto ask(Question question) {
        using Answer = std::invoke_result_t<Question>;
        std::optional<Answer> answer;
        run_and_wait([&] { answer = question(); });
        return answer ? std::move(*answer) : Answer{};
    }

    /// True once the window has closed: nothing posted will be seen any more.
    bool closing() const { return queue_.closed(); }

    /// Waits, for a worker; false when the program ends meanwhile.
    virtual bool sleep(double seconds);

    // --- workers only -----------------------------------------------------------------------

    /// Shows the alert and waits for the person's answer, the index of the button. Only the
    /// asking worker waits; all other work goes on. Gives the last button when the gate closes.
    int run_alert(const Alert& alert);

    // --- user-interface thread only ---------------------------------------------------------

    /// Shows the alert and returns at once; `answered` gets the index of the pressed button.
    virtual void open_alert(const Alert& alert, std::function<void(int)> answered) = 0;

    virtual void beep() = 0;

    /// Asks an editor that is open in the window to finish. False when it will not.
    virtual bool end_editing() = 0;

    /// Ends the program's event loop.
    virtual void terminate() = 0;

    /// Shuts the gate between workers and window, for good.
    void close_gate();

  protected:
    /// Asks the event loop to call run_turn() soon. Any thread.
    virtual void wake() = 0;
    void run_turn() { queue_.run_turn(); }

  private:
    class Promise;

    void run_and_wait(Closure closure);

    Ordered_Queue queue_;
    std::vector<std::weak_ptr<Promise>> open_alerts_;  // that workers wait for
};

}  // namespace velk
