// The launcher in front of the real tool, with a server of its own that sees no phone.
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "bridge/device_list.h"
#include "launched.h"

namespace velk {
namespace {

/// A port that nobody listened on just now.
std::string free_port() {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const auto plain = reinterpret_cast<sockaddr*>(&address);
    if (bind(socket, plain, size) != 0 || getsockname(socket, plain, &size) != 0) std::abort();
    close(socket);
    return std::to_string(ntohs(address.sin_port));
}

class Real_Adb : public testing::Test {
  protected:
    ~Real_Adb() override { launch({"kill-server"}); }

    Environment_Setting port_{"ANDROID_ADB_SERVER_PORT", free_port()};
    Environment_Setting no_cable_{"ADB_USB", "0"};
    Environment_Setting no_emulator_{"ADB_EMU", "0"};
    Environment_Setting chosen_{"VELK_ADB", nullptr};
};

TEST_F(Real_Adb, lists_no_phone_with_the_older_header) {
    const Launched starting = launch({"devices"});
    EXPECT_EQ(starting.output, "List of devices attached \n\n");
    EXPECT_EQ(starting.status, 0);
    EXPECT_FALSE(lists_a_device(starting.output, attached_position(starting.output)));

    const Launched again = launch({"devices"});
    EXPECT_EQ(again.output, starting.output);
    EXPECT_EQ(again.errors, "") << "the server did not outlive the call that started it";
}

TEST_F(Real_Adb, does_not_wait_for_a_phone_that_is_gone) {
    launch({"start-server"});
    for (const char* const command : {"uninstall", "pull", "push", "install"}) {
        const Launched launched = launch({"-s", "S1", command, "/dev/null", "/tmp/none"});
        EXPECT_THAT(launched.output, testing::HasSubstr("device 'S1' not found")) << command;
        EXPECT_NE(launched.status, 0) << command;
    }
}

}  // namespace
}  // namespace velk
