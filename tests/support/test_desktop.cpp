#include "support/test_desktop.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <chrono>

#include "base/interruptor.h"
#include "base/text.h"
#include "support/patience.h"
#include "ui/dialog.h"
#include "ui/worker.h"

namespace velk {

namespace {

/// How often a condition is looked at that no posted closure brings about.
constexpr std::chrono::milliseconds look_again{2};

}  // namespace

Test_Desktop::~Test_Desktop() {
    end_work();
}

void Test_Desktop::end_work() {
    close_gate();
    EXPECT_TRUE(Worker::stop_all(longer_than_needed)) << "a worker does not end";
}

void Test_Desktop::wake() {
    const std::lock_guard lock(mutex_);
    woken_ = true;
    wake_up_.notify_all();
}

bool Test_Desktop::wait_for_wake(bool waits) {
    std::unique_lock lock(mutex_);
    if (waits) wake_up_.wait_for(lock, look_again, [this] { return woken_; });
    return std::exchange(woken_, false);
}

void Test_Desktop::pump() {
    while (serve()) {
    }
}

bool Test_Desktop::serve() {
    const bool served = serve_watched();
    const bool woken = wait_for_wake(!served);
    if (woken) run_turn();
    return served || woken;
}

bool Test_Desktop::pump_until(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + longer_than_needed;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            ADD_FAILURE() << "what the test waits for does not come";
            return false;
        }
        serve();
    }
    return true;
}

Desktop::Watch Test_Desktop::watch(int descriptor, std::function<void()> readable) {
    const auto watched = std::make_shared<Watched>(Watched{descriptor, std::move(readable)});
    watched_.emplace_back(watched);
    return watched;
}

bool Test_Desktop::serve_watched() {
    std::erase_if(watched_, [](const auto& watched) { return watched.expired(); });
    bool served = false;
    for (const auto& each : std::vector(watched_)) {
        const auto watched = each.lock();
        pollfd polled{watched ? watched->descriptor : -1, POLLIN, 0};
        if (poll(&polled, 1, 0) <= 0) continue;
        watched->readable();
        served = true;
    }
    return served;
}

void Test_Desktop::finish_work() {
    do {
        if (!pump_until([] { return Worker::running() == 0; })) return;
        pump();
    } while (Worker::running() > 0);
}

void Test_Desktop::press(int button) {
    ASSERT_TRUE(alert_is_open());
    std::exchange(open_, nullptr)(button);
}

void Test_Desktop::open_alert(const Alert& alert, std::function<void(int)> answered) {
    alerts_.push_back(alert);
    note("alert: " + alert.text);
    if (answers_.empty()) {
        ADD_FAILURE() << "nobody expected the alert \"" << alert.text << '"';
        answered(alert.last_button());
        return;
    }
    const int answer = answers_.front();
    answers_.pop_front();
    if (answer == held)
        open_ = std::move(answered);
    else
        answered(answer);
}

void Test_Desktop::open_file_panel(const File_Panel& panel,
                                   std::function<void(std::string)> chosen) {
    panels_.push_back(panel);
    note("panel: " + panel.title);
    if (paths_.empty()) {
        ADD_FAILURE() << "nobody expected the panel \"" << panel.title << '"';
        return chosen("");
    }
    const std::string path = paths_.front();
    paths_.pop_front();
    chosen(path);
}

void Test_Desktop::show_dialog(Dialog& dialog, std::function<void()> closed) {
    note("dialog: " + dialog.name());
    dialog.on_close([&dialog, closed] {
        const auto told = closed;
        dialog.on_close(nullptr);
        told();
    });
    if (people_.empty()) {
        ADD_FAILURE() << "nobody expected the dialog " << dialog.name();
        return dialog.close();
    }
    const auto person = people_.front();
    people_.pop_front();
    person(dialog);
}

bool Test_Desktop::sleep(double seconds) {
    if (!sleeps_are_instant_) return Desktop::sleep(seconds);
    perform([this, seconds] { note(format("sleep %g", seconds)); });
    return !Interruptor::current().cancelled();
}

void Test_Desktop::terminate() {
    terminated_ = true;
    note("terminate");
}

int Test_Desktop::beeps() const {
    return static_cast<int>(std::count(notes_.begin(), notes_.end(), "beep"));
}

void Test_Desktop::note(const std::string& text) {
    notes_.push_back(text);
    if (on_note) on_note(text);
}

}  // namespace velk
