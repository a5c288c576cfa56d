// A manager without a window and without a session: an agent, and a main window that only records.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <future>

#include "base/text.h"
#include "support/agent_double.h"
#include "support/outlet_recorder.h"
#include "support/test_desktop.h"
#include "ui/busy_line.h"
#include "ui/main_window.h"
#include "ui/program_wide.h"

namespace velk {

class Recording_Window : public Main_Window {
  public:
    explicit Recording_Window(Outlet_Recorder& recorder) : recorder_(recorder) {}

    Desktop& desktop() override { return test_desktop; }
    Busy_Line& busy_line() override { return busy; }
    void set_section_title(Toolbar_Section section, std::string title) override {
        recorder_.note(format("title %d: ", static_cast<int>(section)) + title);
    }
    void set_BT_Caption_White() override {
        test_desktop.perform([this] { recorder_.note("captions white"); });
    }
    void show_message(const std::string& text) override {
        test_desktop.perform([this, text] { recorder_.note("message: " + text); });
    }

    Test_Desktop test_desktop;
    Busy_Line busy;

  private:
    Outlet_Recorder& recorder_;
};

/// What the tests of every manager stand on. Who adds the manager ends the work before it goes.
class Manager_Test : public testing::Test {
  protected:
    Manager_Test() {
        window.test_desktop.on_note = [this](const std::string& line) { recorder.note(line); };
        g_phone_was_changed = 0;
        g_device_serial_number = "R58 M";
    }

    void finish() { window.test_desktop.finish_work(); }
    /// The requests but for those that load a list.
    std::vector<std::string> edits() {
        std::vector<std::string> requests = agent.requests();
        std::erase_if(requests, [](const std::string& request) { return request.size() == 1; });
        return requests;
    }

    /// Does `meanwhile` while the first edit that `begin` asks for, with this code, has no answer
    /// yet; then it gets "ok" (or `reply`), and the work ends.
    void during_an_edit(int code, const std::function<void()>& begin,
                        const std::function<void()>& meanwhile, Agent_Double::Reply reply = "ok") {
        std::promise<void> answer;
        agent.reply_once_to(code, Agent_Double::held_back(std::move(reply), answer));
        begin();
        EXPECT_TRUE(window.test_desktop.pump_until([this] { return edits().size() == 1; }));
        meanwhile();
        answer.set_value();
        finish();
    }
    /// Another phone is connected.
    static void swap_phones() { g_device_serial_number = "another"; }

    Agent_Double agent;
    Outlet_Recorder recorder;
    Recording_Window window{recorder};
};

}  // namespace velk
