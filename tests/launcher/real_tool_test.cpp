// Which tool the launcher runs.
#include <gmock/gmock.h>

#include "launched.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Real_Tool : public testing::Test {
  protected:
    Fake_Adb here_;
    Fake_Adb there_;
    Environment_Setting chosen_{"VELK_ADB", nullptr};
};

TEST_F(Real_Tool, is_the_chosen_one_before_any_other) {
    const Environment_Setting path("PATH", here_.directory());
    const Environment_Setting chosen("VELK_ADB", there_.tool());
    launch({"version"});
    EXPECT_THAT(there_.call_lines(), ElementsAre("version"));
    EXPECT_THAT(here_.calls(), IsEmpty());
}

TEST_F(Real_Tool, is_the_first_on_the_search_path_that_is_not_the_launcher) {
    Fake_Adb link;
    std::filesystem::remove(link.tool());
    std::filesystem::create_symlink(VELK_LAUNCHER, link.tool());
    const std::string own = std::filesystem::path(VELK_LAUNCHER).parent_path().string();
    const Environment_Setting path("PATH", "/nowhere:" + own + "::" + link.directory() + ":" +
                                               here_.directory() + ":" + there_.directory());
    launch({"version"}, {}, link.tool());
    EXPECT_THAT(here_.call_lines(), ElementsAre("version"));
    EXPECT_THAT(there_.calls(), IsEmpty());
}

TEST_F(Real_Tool, may_stand_in_the_usual_sdk_folders) {
    const Environment_Setting path("PATH", "/nowhere");
    const std::filesystem::path root = here_.directory();
    const std::pair<const char*, std::string> folders[] = {
        {"ANDROID_HOME", "platform-tools"},
        {"ANDROID_SDK_ROOT", "platform-tools"},
        {"HOME", "Android/Sdk/platform-tools"},
    };
    for (const auto& [variable, folder] : folders) {
        const std::filesystem::path base = root / variable;
        std::filesystem::create_directories(base / folder);
        std::filesystem::create_symlink(VELK_FAKE_ADB, base / folder / "adb");
        const Environment_Setting setting(variable, base.string());
        launch({"version"});
        EXPECT_TRUE(std::filesystem::exists(base / folder / "calls")) << variable;
    }
}

TEST_F(Real_Tool, that_is_missing_is_told_in_one_line_and_fails_a_pull) {
    const std::string no_program = here_.directory() + "/text";
    std::ofstream(no_program) << "text\n";
    for (const std::string& unusable :
         {std::string("/nowhere/adb"), no_program, here_.directory(), std::string(VELK_LAUNCHER)}) {
        const Environment_Setting chosen("VELK_ADB", unusable);
        const Launched devices = launch({"devices"});
        EXPECT_EQ(devices.status, 127) << unusable;
        EXPECT_EQ(devices.output, "");
        EXPECT_THAT(devices.errors, HasSubstr("install the package \"adb\""));
        EXPECT_EQ(devices.errors.find('\n'), devices.errors.size() - 1);
        EXPECT_EQ(launch({"-s", "S1", "pull", "a", "b"}).output, devices.errors);
    }
}

TEST_F(Real_Tool, made_for_another_machine_fails_a_pull) {
    const std::string foreign = here_.directory() + "/foreign";
    std::ofstream(foreign) << "\x7F"
                              "ELF";
    std::filesystem::permissions(foreign, std::filesystem::perms::owner_all);
    const Environment_Setting chosen("VELK_ADB", foreign);
    for (const char* const command : {"devices", "pull", "shell"}) {
        const Launched launched = launch({command, "a", "b"});
        EXPECT_EQ(launched.status, 127);
        EXPECT_THAT(launched.errors, HasSubstr(foreign + ": ")) << command;
        EXPECT_EQ(launched.output, command == std::string("pull") ? launched.errors : "");
    }
}

}  // namespace
}  // namespace velk
