// A Desktop without a window: the test's own thread is the user-interface thread.
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "ui/desktop.h"

namespace velk {

/// Make it on the test's thread. The queue runs only inside pump() and pump_until().
class Test_Desktop : public Desktop {
  public:
    Test_Desktop() = default;
    ~Test_Desktop() override;

    /// Runs what is posted, until nothing is left.
    void pump();
    /// Runs what is posted until the condition holds. Fails the test (and gives false) when that
    /// takes longer than any machine needs.
    bool pump_until(const std::function<bool()>& condition);
    /// Runs what is posted until no worker is left either.
    void finish_work();
    /// Closes the gate and ends all workers. Call it before what the
    /// workers use goes; the destructor does it too.
    void end_work();

    // Boxes. One that was not scripted fails the test at once, and is answered by Escape.

    /// The next file panel is answered by this path, or by Cancel when it is empty.
    void choose_file(std::string path) { paths_.push_back(std::move(path)); }
    /// All that were opened.
    const std::vector<File_Panel>& file_panels() const { return panels_; }
    /// The next dialog is used so as soon as it opens; it stays open unless this closes it.
    void use_dialog(std::function<void(Dialog&)> person) { people_.push_back(std::move(person)); }

    /// The next alert gets this answer as soon as it opens.
    void answer_alert(int button) { answers_.push_back(button); }
    /// The next alert stays open until press(button).
    void hold_alert() { answers_.push_back(held); }
    void press(int button);
    bool alert_is_open() const { return static_cast<bool>(open_); }
    /// All that were opened.
    const std::vector<Alert>& alerts() const { return alerts_; }

    /// From here on a worker's sleeps take no time, and are noted in its own order: "sleep 0.6".
    void make_sleeps_instant() { sleeps_are_instant_ = true; }

    /// Told of "beep", "alert: text", "panel: title", "dialog: name", "sleep 0.6" and "terminate"
    /// as they come, on the test's thread; an Outlet_Recorder's note, for instance.
    std::function<void(const std::string&)> on_note;
    const std::vector<std::string>& notes() const { return notes_; }
    int beeps() const;
    bool terminated() const { return terminated_; }

    /// What end_editing() answers.
    bool editing_ends = true;

    bool sleep(double seconds) override;
    void open_alert(const Alert& alert, std::function<void(int)> answered) override;
    void open_file_panel(const File_Panel& panel, std::function<void(std::string)> chosen) override;
    Watch watch(int descriptor, std::function<void()> readable) override;
    void beep() override { note("beep"); }
    bool end_editing() override { return editing_ends; }
    void terminate() override;

  protected:
    void show_dialog(Dialog& dialog, std::function<void()> closed) override;
    void input_changed() override {}
    void wake() override;

  private:
    static constexpr int held = -1;

    void note(const std::string& text);
    /// One turn of the loop; true when there was something to do.
    bool serve();
    bool wait_for_wake(bool waits);
    /// Calls for each watched descriptor that is readable; true when there was one.
    bool serve_watched();

    std::mutex mutex_;
    std::condition_variable wake_up_;
    bool woken_ = false;
    struct Watched {
        int descriptor;
        std::function<void()> readable;
    };
    std::vector<std::weak_ptr<const Watched>> watched_;

    std::deque<int> answers_;
    std::function<void(int)> open_;
    std::vector<Alert> alerts_;
    std::deque<std::string> paths_;
    std::vector<File_Panel> panels_;
    std::deque<std::function<void(Dialog&)>> people_;
    std::vector<std::string> notes_;
    std::atomic<bool> sleeps_are_instant_ = false;
    bool terminated_ = false;
};

}  // namespace velk
