#include "ui/desktop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "support/test_desktop.h"
#include "ui/outlets.h"
#include "ui/worker.h"

namespace velk {
namespace {

const Alert question{"Information", "Delete?", {"Yes", "No"}};

TEST(Desktop, AnAnswerComesBehindAllThatWasPostedBefore) {
    Test_Desktop desktop;
    int rows = 0;
    std::atomic<int> answer = 0;
    Worker::start("asker", [&] {
        for (int i = 0; i < 100; ++i) desktop.post([&] { ++rows; });
        answer = desktop.ask([&] { return rows; });
    });
    EXPECT_TRUE(desktop.pump_until([&] { return answer != 0; }));
    EXPECT_EQ(answer, 100);
}

// What a worker may be waiting for when the window closes.
TEST(Desktop, ClosingTheGateLetsEveryWaitingWorkerGo) {
    const auto ask = [](Desktop& desktop) { return desktop.ask([] { return 7; }); };
    const auto alert = [](Desktop& desktop) { return desktop.run_alert(question); };
    const struct {
        std::function<int(Desktop&)> wait;
        bool has_opened;  // the alert, when the gate closes
        int answer;
    } cases[] = {{ask, false, 0}, {alert, false, 1}, {alert, true, 1}};
    for (const auto& each : cases) {
        Test_Desktop desktop;
        desktop.hold_alert();
        std::atomic<bool> waiting = false;
        std::atomic<int> answer = -1;
        Worker::start("asker", [&] {
            waiting = true;
            answer = each.wait(desktop);
        });
        while (!waiting) std::this_thread::yield();
        if (each.has_opened) desktop.pump_until([&] { return desktop.alert_is_open(); });
        desktop.end_work();
        EXPECT_EQ(answer, each.answer);
    }
}

TEST(Outlets, AreNotObservedByWhoHasGone) {
    int seen = 0;
    Label label("m_LB");
    auto observation = label.observe([&](const Outlet&) { ++seen; });
    label.set_text("a");
    observation.reset();
    label.set_text("b");
    EXPECT_EQ(seen, 1);
}

TEST(OutletsDeathTest, AWorkerThatWritesOneDirectlyIsCaught) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEBUG_DEATH(
        {
            this_is_the_ui_thread();
            Label label("m_LB");
            std::thread([&] { label.set_text("from a worker"); }).join();
        },
        "on_ui_thread");
}

}  // namespace
}  // namespace velk
