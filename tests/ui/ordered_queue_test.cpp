#include "ui/ordered_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace velk {
namespace {

constexpr std::chrono::hours no_cap{1};

TEST(OrderedQueue, EachThreadsClosuresRunInTheOrderItPostedThem) {
    constexpr int threads = 8, each = 2000;
    std::atomic<int> wakes = 0;
    Ordered_Queue queue([&] { ++wakes; });
    std::vector<int> next(threads, 0);
    int run = 0;
    std::vector<std::thread> posters;
    for (int t = 0; t < threads; ++t)
        posters.emplace_back([&, t] {
            for (int i = 0; i < each; ++i)
                queue.post([&, t, i] {
                    EXPECT_EQ(next[static_cast<std::size_t>(t)]++, i);
                    ++run;
                });
        });
    // A turn comes only for a wake-up, so a wake-up that is forgotten leaves closures behind.
    int answered = 0;
    while (run < threads * each) {
        std::this_thread::yield();
        if (answered == wakes) continue;
        ++answered;
        queue.run_turn();
    }
    for (std::thread& poster : posters) poster.join();
}

TEST(OrderedQueue, OneWakeUpIsUnderWayAtATime) {
    int wakes = 0, run = 0;
    Ordered_Queue queue([&] { ++wakes; });
    for (int i = 0; i < 100; ++i) queue.post([&] { ++run; });
    EXPECT_EQ(wakes, 1);
    queue.run_turn(no_cap);
    EXPECT_EQ(run, 100);
    queue.post([] {});
    EXPECT_EQ(wakes, 2);
}

TEST(OrderedQueue, ATurnThatHasUsedItsTimeLetsTheWindowBreatheAndAsksForAnother) {
    int wakes = 0, run = 0;
    Ordered_Queue queue([&] { ++wakes; });
    for (int i = 0; i < 3; ++i) queue.post([&] { ++run; });
    for (int turn = 1; turn <= 3; ++turn) {
        queue.run_turn(std::chrono::nanoseconds(0));
        EXPECT_EQ(run, turn);
        EXPECT_EQ(wakes, turn < 3 ? turn + 1 : 3);
    }
}

TEST(OrderedQueue, WhatAClosurePostsRunsBehindAllThatWaits) {
    Ordered_Queue queue([] {});
    std::vector<int> order;
    queue.post([&] {
        order.push_back(1);
        queue.post([&] { order.push_back(3); });
    });
    queue.post([&] { order.push_back(2); });
    queue.run_turn(no_cap);
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(OrderedQueue, ClosingDropsWhatWaitsAndRefusesTheRest) {
    Ordered_Queue queue([] {});
    const auto owned = std::make_shared<int>();
    bool run = false;
    queue.post([&queue, owned] { queue.close(); });
    queue.post([&run, owned] { run = true; });
    queue.run_turn(no_cap);
    EXPECT_FALSE(run);
    EXPECT_TRUE(queue.closed());
    EXPECT_FALSE(queue.post([owned] {}));
    EXPECT_EQ(owned.use_count(), 1) << "something dropped is still kept";
}

TEST(OrderedQueue, AClosureThatIsDroppedMayPostWhenItGoes) {
    Ordered_Queue queue([] {});
    struct Posts_When_It_Goes {
        explicit Posts_When_It_Goes(Ordered_Queue& its_queue) : queue(its_queue) {}
        ~Posts_When_It_Goes() {
            EXPECT_FALSE(queue.post([] {}));
        }
        Ordered_Queue& queue;
    };
    queue.post([last = std::make_shared<Posts_When_It_Goes>(queue)] {});
    queue.close();
}

}  // namespace
}  // namespace velk
