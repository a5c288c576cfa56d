#include "ui/desktop.h"

#include <gtest/gtest.h>

#include <atomic>

#include "support/test_desktop.h"
#include "ui/worker.h"

namespace velk {
namespace {

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

TEST(Desktop, TheUserInterfaceThreadAsksAndPerformsAtOnce) {
    Test_Desktop desktop;
    int value = 1;
    desktop.post([&] { value = 2; });
    EXPECT_EQ(desktop.ask([&] { return value; }), 1);
    desktop.perform([&] { value = 3; });
    EXPECT_EQ(value, 3);
}

TEST(Desktop, AnOpenAlertSuspendsOnlyTheWorkerThatAsks) {
    Test_Desktop desktop;
    desktop.hold_alert();
    std::vector<std::string> order;
    std::atomic<bool> other_done = false, asker_done = false;
    Worker::start("asker", [&] {
        const int button = desktop.run_alert({"Information", "Delete?", {"Yes", "No"}});
        desktop.post([&, button] {
            order.push_back("asker " + std::to_string(button));
            asker_done = true;
        });
    });
    EXPECT_TRUE(desktop.pump_until([&] { return desktop.alert_is_open(); }));
    Worker::start("other", [&] {
        desktop.post([&] {
            order.push_back("other");
            other_done = true;
        });
    });
    EXPECT_TRUE(desktop.pump_until([&] { return other_done.load(); }));
    desktop.press(1);
    EXPECT_TRUE(desktop.pump_until([&] { return asker_done.load(); }));
    EXPECT_EQ(order, (std::vector<std::string>{"other", "asker 1"}));
}

// What a worker may be waiting for when the window closes.
TEST(Desktop, ClosingTheGateLetsEveryWaitingWorkerGo) {
    const struct {
        const char* what;
        bool runs_before;  // the question has reached the window when the gate closes
        std::function<int(Desktop&)> ask;
        int answer;
    } cases[] = {
        {"a question", false, [](Desktop& desktop) { return desktop.ask([] { return 7; }); }, 0},
        {"an alert that has not opened", false,
         [](Desktop& desktop) {
             return desktop.run_alert({"Information", "?", {"Yes", "No"}});
         },
         1},
        {"an alert that is open", true,
         [](Desktop& desktop) {
             return desktop.run_alert({"Information", "?", {"Yes", "No"}});
         },
         1},
    };
    for (const auto& each : cases) {
        Test_Desktop desktop;
        desktop.hold_alert();
        std::atomic<bool> asking = false;
        std::atomic<int> answer = -1;
        Worker::start("asker", [&] {
            asking = true;
            answer = each.ask(desktop);
        });
        while (!asking) std::this_thread::yield();
        if (each.runs_before) desktop.pump_until([&] { return desktop.alert_is_open(); });
        desktop.end_work();
        EXPECT_EQ(answer, each.answer) << each.what;
        EXPECT_TRUE(desktop.closing());
    }
}

TEST(Desktop, ASleepEndsWithTheProgramAndSaysSo) {
    Test_Desktop desktop;
    std::atomic<bool> asleep = false, slept = true;
    Worker::start("sleeper", [&] {
        asleep = true;
        slept = desktop.sleep(3600);
    });
    while (!asleep) std::this_thread::yield();
    desktop.end_work();
    EXPECT_FALSE(slept);
}

}  // namespace
}  // namespace velk
