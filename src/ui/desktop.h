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

#include "ui/boxes.h"
#include "ui/ordered_queue.h"

namespace velk {

class Dialog;

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

    // Each shows a box and waits for the person. Only the asking worker waits; all other work goes
    // on. When the gate closes, it is as if the person had cancelled.

    /// Gives the index of the pressed button.
    int run_alert(const Alert& alert);
    /// Gives the chosen path, empty when the person cancelled.
    std::string run_file_panel(const File_Panel& panel);

    // --- user-interface thread only ---------------------------------------------------------

    /// Shows the alert and returns at once; `answered` gets the index of the pressed button.
    virtual void open_alert(const Alert& alert, std::function<void(int)> answered) = 0;

    /// Shows the panel and returns at once; `chosen` gets the path, empty when cancelled.
    virtual void open_file_panel(const File_Panel& panel,
                                 std::function<void(std::string)> chosen) = 0;

    /// Shows the dialog and returns at once; `closed` is called when it is closed in any way.
    void open_dialog(Dialog& dialog, std::function<void()> closed);

    /// While false, what stands on the screen gets no clicks and keys, but paints and can be
    /// closed. A box that opens meanwhile is free.
    void take_input(bool takes);
    bool takes_input() const { return takes_input_; }

    /// What watches a descriptor, as long as it is kept.
    using Watch = std::shared_ptr<void>;
    /// Calls `readable` whenever the descriptor has something to read, which it must take. The
    /// descriptor stays open and the desktop lives until the watch has gone.
    [[nodiscard]] virtual Watch watch(int descriptor, std::function<void()> readable) = 0;

    virtual void beep() = 0;

    /// Asks an editor that is open in the window to finish. False when it will not.
    virtual bool end_editing() = 0;

    /// Ends the program's event loop.
    virtual void terminate() = 0;

    /// Shuts the gate between workers and window, for good.
    void close_gate();

  protected:
    virtual void show_dialog(Dialog& dialog, std::function<void()> closed) = 0;
    virtual void input_changed() = 0;

    /// Asks the event loop to call run_turn() soon. Any thread.
    virtual void wake() = 0;
    void run_turn() { queue_.run_turn(); }

  private:
    class Promise;

    void run_and_wait(Closure closure);
    template <class Answer>
    Answer run_box(Answer when_closing, std::function<void(std::function<void(Answer)>)> open);

    Ordered_Queue queue_;
    std::vector<std::weak_ptr<Promise>> open_boxes_;  // that workers wait for
    bool takes_input_ = true;
};

}  // namespace velk
