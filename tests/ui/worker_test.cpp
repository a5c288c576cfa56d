#include "ui/worker.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <memory>
#include <thread>

#include "base/interruptor.h"
#include "support/patience.h"

namespace velk {
namespace {

class Workers : public testing::Test {
  protected:
    ~Workers() override { EXPECT_TRUE(Worker::stop_all(longer_than_needed)); }
};

TEST_F(Workers, StoppingInterruptsASleeperAndAReceive) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    std::atomic<int> under_way = 0, ended = 0;
    Worker::start("sleeper", [&] {
        ++under_way;
        Interruptor::current().sleep_for(std::chrono::hours(1));
        ++ended;
    });
    Worker::start("receiver", [&] {
        const Interruptor::Socket registered(ends[0]);
        ++under_way;
        char byte = 0;
        EXPECT_EQ(::recv(ends[0], &byte, 1, 0), 0);
        ++ended;
    });
    while (under_way < 2) std::this_thread::yield();
    EXPECT_EQ(Worker::running(), 2);
    EXPECT_TRUE(Worker::stop_all(longer_than_needed));
    EXPECT_EQ(ended, 2);
    for (const int end : ends) ::close(end);
}

TEST_F(Workers, OneThatDoesNotEndIsToldAndNotWaitedFor) {
    std::atomic<bool> go = false;
    Worker::start("stubborn", [&] {
        while (!go) std::this_thread::yield();
    });
    EXPECT_FALSE(Worker::stop_all(std::chrono::milliseconds(1)));
    go = true;
    EXPECT_TRUE(Worker::stop_all(longer_than_needed));
}

TEST_F(Workers, AWorkerHasEndedOnlyWhenWhatItOwnsHasGone) {
    for (int i = 0; i < 20; ++i) {
        std::atomic<bool> gone = false;
        const auto slow_to_go = [&gone](void*) {
            for (int turn = 0; turn < 1000; ++turn) std::this_thread::yield();
            gone = true;
        };
        Worker::start("owner", [owned = std::shared_ptr<void>(nullptr, slow_to_go)] {});
        EXPECT_TRUE(Worker::stop_all(longer_than_needed));
        EXPECT_TRUE(gone);
        while (!gone) std::this_thread::yield();
    }
}

}  // namespace
}  // namespace velk
