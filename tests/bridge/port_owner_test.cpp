#include "bridge/port_owner.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>

#include "base/descriptor.h"

namespace velk {
namespace {

/// Somebody who listens at an address of this computer, on a port that was free.
class Listening {
  public:
    explicit Listening(const char* address) {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        EXPECT_EQ(inet_pton(AF_INET, address, &place.sin_addr), 1);
        socklen_t size = sizeof place;
        auto* const general = reinterpret_cast<sockaddr*>(&place);
        EXPECT_EQ(bind(socket_.number(), general, size), 0) << address;
        EXPECT_EQ(listen(socket_.number(), 1), 0);
        getsockname(socket_.number(), general, &size);
        port = ntohs(place.sin_port);
    }
    std::uint16_t port = 0;

  private:
    Descriptor socket_{socket(AF_INET, SOCK_STREAM, 0)};
};

TEST(Port_Owner, is_the_program_that_gets_what_is_sent_to_this_computer) {
    for (const char* const address : {"127.0.0.1", "0.0.0.0"}) {
        const Listening listening(address);
        const auto owner = owner_of_port(listening.port);
        ASSERT_TRUE(owner) << address;
        EXPECT_EQ(owner->process, getpid());
        EXPECT_EQ(owner->user, getuid());
        EXPECT_EQ(owner->name, "bridge_test");
    }
    EXPECT_FALSE(owner_of_port(Listening("127.0.0.2").port));
}

TEST(Port_Owner, is_told_to_the_person_unless_it_is_adb) {
    unsetenv("ANDROID_ADB_SERVER_PORT");
    const Listening listening("127.0.0.1");
    const std::string told = trouble_with_port(listening.port);
    EXPECT_NE(told.find("\"bridge_test\""), std::string::npos) << told;
    EXPECT_NE(told.find(std::to_string(listening.port)), std::string::npos) << told;
    // A tool of another name is known by its server's port.
    const Listening server("127.0.0.1");
    setenv("ANDROID_ADB_SERVER_PORT", std::to_string(server.port).c_str(), 1);
    EXPECT_EQ(trouble_with_port(listening.port), "");
    unsetenv("ANDROID_ADB_SERVER_PORT");
}

}  // namespace
}  // namespace velk
