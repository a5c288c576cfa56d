// The launcher in front of the real tool, with a server of its own that sees no phone.
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>

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

TEST(Real_Adb, is_read_like_an_older_one_keeps_its_server_and_is_not_waited_for) {
    const Words environment{"VELK_ADB=", "ADB_USB=0", "ADB_EMU=0",
                            "ANDROID_ADB_SERVER_PORT=" + free_port(),
                            "ANDROID_SDK_HOME=" + testing::TempDir()};
    EXPECT_EQ(launch(environment, {"devices"}).output, "List of devices attached \n\n");
    EXPECT_EQ(launch(environment, {"devices"}).errors, "") << "its server had to be started again";
    for (const char* const command : {"uninstall", "pull", "push", "install"}) {
        const Launched launched = launch(environment, {"-s", "S1", command, "/dev/null", "/tmp/x"});
        EXPECT_THAT(launched.output, testing::HasSubstr("device 'S1' not found")) << command;
    }
    launch(environment, {"kill-server"});
}

}  // namespace
}  // namespace velk
