#include "launcher/command_line.h"

#include <gmock/gmock.h>

namespace velk {
namespace {

using testing::ElementsAreArray;

TEST(Command_Line, finds_the_command_behind_the_global_options) {
    using Words = std::vector<std::string>;
    struct Case {
        Words options;
        std::string command;
        Words arguments;
    };
    const Case cases[] = {
        {{}, "devices", {}},
        {{"-s", "push"}, "pull", {"-a", "x"}},
        {{"-d"}, "install", {"-r", "a.apk"}},
        {{"-e", "-a", "-t", "4", "-H", "host", "-P", "5038", "-L", "tcp:5038"}, "devices", {"-l"}},
        {{"-P5038", "-Hhost"}, "devices", {}},
        {{"--version"}, "", {}},
        {{"-s"}, "", {}},
        {{}, "", {}},
    };
    for (const Case& one : cases) {
        Words words = one.options;
        if (!one.command.empty()) words.push_back(one.command);
        words.insert(words.end(), one.arguments.begin(), one.arguments.end());
        const Command_Line line = read_command_line(words);
        EXPECT_EQ(line.global_options, one.options);
        EXPECT_EQ(line.command, one.command);
        EXPECT_EQ(line.arguments, one.arguments);
        EXPECT_THAT(line.words(), ElementsAreArray(words));
    }
}

}  // namespace
}  // namespace velk
