// The launcher in front of the real tool, with a server of its own that sees no phone.
#include <gmock/gmock.h>

#include "demo_phone/phone_sockets.h"
#include "launched.h"

namespace velk {
namespace {

TEST(Real_Adb, is_read_like_an_older_one_keeps_its_server_and_is_not_waited_for) {
    int free_port = 0;
    listen_odd_tcp(free_port);
    const Words environment{"VELK_ADB=", "ADB_USB=0", "ADB_EMU=0",
                            "ANDROID_ADB_SERVER_PORT=" + std::to_string(free_port),
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
