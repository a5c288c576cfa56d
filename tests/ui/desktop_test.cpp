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

TEST(Desktop, AnOpenAlertSuspendsOnlyTheWorkerThatAsks) {
    Test_Desktop desktop;
    desktop.hold_alert();
    std::atomic<bool> other_done = false;
    std::atomic<int> answer = -1;
    Worker::start("asker", [&] { answer = desktop.run_alert(question); });
    EXPECT_TRUE(desktop.pump_until([&] { return desktop.alert_is_open(); }));
    Worker::start("other", [&] { desktop.post([&] { other_done = true; }); });
    EXPECT_TRUE(desktop.pump_until([&] { return other_done.load(); }));
    EXPECT_EQ(answer, -1);
    desktop.press(0);
    EXPECT_TRUE(desktop.pump_until([&] { return answer == 0; }));
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

TEST(Outlets, AreNotObservedOnceTheObserverHasGoneAndMayGoFirst) {
    int seen = 0;
    auto label = std::make_unique<Label>("m_LB");
    auto first = label->observe([&](const Outlet&) { ++seen; });
    const auto second = label->observe([&](const Outlet&) { first.reset(); });
    label->set_text("a");
    label->set_text("b");
    EXPECT_EQ(seen, 1);
    label.reset();
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
