// Which tool the launcher runs.
#include <gmock/gmock.h>

#include "launched.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::HasSubstr;

TEST(Real_Tool, is_the_chosen_one_else_the_first_on_the_search_path_that_is_not_the_launcher) {
    const Fake_Adb here, there, link;
    std::filesystem::remove(link.tool());
    std::filesystem::create_symlink(VELK_LAUNCHER, link.tool());
    const std::string own = std::filesystem::path(VELK_LAUNCHER).parent_path().string();
    const std::string path = "PATH=/nowhere:" + own + "::" + link.directory() + ":" +
                             here.directory() + ":" + there.directory();
    launch({"VELK_ADB=", path}, {"version"}, link.tool());
    EXPECT_EQ(here.call_lines(), Words{"version"});
    launch({"VELK_ADB=" + there.tool(), path}, {"help"});
    EXPECT_EQ(there.call_lines(), Words{"help"});
    const std::filesystem::path sdk = there.directory() + "/Android/Sdk/platform-tools";
    std::filesystem::create_directories(sdk);
    std::filesystem::create_symlink(VELK_FAKE_ADB, sdk / "adb");
    launch({"VELK_ADB=", "PATH=/nowhere", "HOME=" + there.directory()}, {"version"});
    EXPECT_TRUE(std::filesystem::exists(sdk / "calls")) << "neither where an SDK is put";
}

TEST(Real_Tool, that_cannot_be_run_is_told_in_one_line_and_fails_a_pull) {
    const Fake_Adb folder;
    const std::string foreign = folder.directory() + "/made for another machine";
    std::ofstream(foreign) << "\x7F ELF";
    std::filesystem::permissions(foreign, std::filesystem::perms::owner_all);
    for (const std::string& unusable :
         {std::string("/nowhere/adb"), foreign, folder.directory(), std::string(VELK_LAUNCHER)}) {
        for (const std::string command : {"devices", "pull", "shell"}) {
            const Launched launched = launch({"VELK_ADB=" + unusable}, {"-d", command});
            SCOPED_TRACE(command + " by " + unusable);
            EXPECT_EQ(launched.status, 127);
            EXPECT_EQ(launched.output, command == "pull" ? launched.errors : "");
            EXPECT_THAT(launched.errors, HasSubstr(unusable));
            EXPECT_EQ(launched.errors.find('\n'), launched.errors.size() - 1);
        }
    }
}

}  // namespace
}  // namespace velk
