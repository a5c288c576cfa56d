#include "base/interruptor.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <functional>
#include <thread>

namespace velk {
namespace {

constexpr std::chrono::hours for_ever{1};

/// A thread with an Interruptor of its own, cancelled once the body says that it is under way.
void cancel_while(const std::function<void(const std::function<void()>& under_way)>& body) {
    Interruptor interruptor;
    std::atomic<bool> under_way = false;
    std::thread worker([&] {
        const Interruptor::Use use(interruptor);
        body([&] { under_way = true; });
    });
    while (!under_way) std::this_thread::yield();
    interruptor.cancel();
    worker.join();
}

struct Socket_Pair {
    Socket_Pair() { EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0); }
    ~Socket_Pair() {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    /// Blocks; 0 when the socket was shut down.
    ssize_t receive() {
        char byte = 0;
        return ::recv(ends[0], &byte, 1, 0);
    }
    std::array<int, 2> ends{};
};

TEST(Interruptor, CancelWakesASleeperAndStaysCancelled) {
    cancel_while([](const auto& under_way) {
        under_way();
        EXPECT_FALSE(Interruptor::current().sleep_for(for_ever));
        EXPECT_FALSE(Interruptor::current().sleep_for(for_ever));
        EXPECT_TRUE(Interruptor::current().cancelled());
    });
}

TEST(Interruptor, CancelEndsAReceiveThatIsUnderWayAndAnyLaterOne) {
    cancel_while([](const auto& under_way) {
        Socket_Pair first, second;
        {
            const Interruptor::Socket registered(first.ends[0]);
            under_way();
            EXPECT_EQ(first.receive(), 0);
        }
        const Interruptor::Socket registered(second.ends[0]);
        EXPECT_EQ(second.receive(), 0);
    });
}

TEST(Interruptor, ASocketThatIsNoLongerRegisteredIsLeftAlone) {
    Socket_Pair sockets;
    Interruptor interruptor;
    const Interruptor::Use use(interruptor);
    { const Interruptor::Socket registered(sockets.ends[0]); }
    interruptor.cancel();
    ASSERT_EQ(::send(sockets.ends[1], "x", 1, 0), 1);
    EXPECT_EQ(sockets.receive(), 1);
}

TEST(Interruptor, CancelEndsTheRegisteredChild) {
    cancel_while([](const auto& under_way) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;) ::pause();
        }
        {
            const Interruptor::Child registered(child);
            under_way();
            siginfo_t ended{};
            EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT), 0);
            EXPECT_EQ(ended.si_status, SIGTERM);
        }
        EXPECT_EQ(::waitpid(child, nullptr, 0), child);
    });
}

TEST(Interruptor, AThreadWithoutOneOfItsOwnIsNeverCancelled) {
    Interruptor interruptor;
    {
        const Interruptor::Use use(interruptor);
        interruptor.cancel();
        EXPECT_TRUE(Interruptor::current().cancelled());
        std::thread([] { EXPECT_FALSE(Interruptor::current().cancelled()); }).join();
    }
    EXPECT_FALSE(Interruptor::current().cancelled());
    EXPECT_TRUE(Interruptor::current().sleep_for(std::chrono::milliseconds(1)));
}

}  // namespace
}  // namespace velk
