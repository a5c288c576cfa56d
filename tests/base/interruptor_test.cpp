#include "base/interruptor.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <thread>

namespace velk {
namespace {

struct Socket_Pair {
    Socket_Pair() { EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0); }
    ~Socket_Pair() {
        for (const int end : ends) ::close(end);
    }
    /// Blocks; 0 when the socket was shut down.
    ssize_t receive() {
        char byte = 0;
        return ::recv(ends[0], &byte, 1, 0);
    }
    std::array<int, 2> ends{};
};

TEST(Interruptor, CancelEndsAllThatItsThreadBeginsLaterAndNothingElse) {
    Socket_Pair over, later;
    Interruptor interruptor;
    {
        const Interruptor::Use use(interruptor);
        { const Interruptor::Socket registered(over.ends[0]); }
        interruptor.cancel();
        EXPECT_FALSE(Interruptor::current().sleep_for(std::chrono::hours(1)));
        const Interruptor::Socket registered(later.ends[0]);
        EXPECT_EQ(later.receive(), 0);
        std::thread([] { EXPECT_FALSE(Interruptor::current().cancelled()); }).join();
    }
    ASSERT_EQ(::send(over.ends[1], "x", 1, 0), 1);
    EXPECT_EQ(over.receive(), 1);
    EXPECT_TRUE(Interruptor::current().sleep_for(std::chrono::milliseconds(1)));
}

}  // namespace
}  // namespace velk
