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

TEST(OrderedQueue, ClosingDropsWhatWaitsAndRefusesTheRest) {
    Ordered_Queue queue([] {});
    struct Posts_When_It_Goes {
        ~Posts_When_It_Goes() {
            refused = !queue.post([] {});
        }
        Ordered_Queue& queue;
        bool& refused;
    };
    bool run = false, refused = false;
    queue.post([&queue] { queue.close(); });
    queue.post([&run, last = std::shared_ptr<void>(new Posts_When_It_Goes{queue, refused})] {
        run = true;
    });
    queue.run_turn(no_cap);
    EXPECT_FALSE(run);
    EXPECT_TRUE(refused) << "what was dropped is kept, or may not post when it goes";
    EXPECT_TRUE(queue.closed());
}

}  // namespace
}  // namespace velk
