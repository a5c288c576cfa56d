#include "shell/options.h"

#include <gtest/gtest.h>

#include <vector>

namespace velk {
namespace {

using Arguments = std::vector<const char*>;

Options parsed(const Arguments& arguments) {
    return options_of(static_cast<int>(arguments.size()), arguments.data());
}

TEST(Options, are_read_in_any_order) {
    const Options options = parsed({"velk", "--tour", "out", "--connect"});
    EXPECT_TRUE(options.connect);
    EXPECT_EQ(options.tour, "out");
    EXPECT_FALSE(options.wrong);
}

TEST(Options, that_cannot_be_followed_end_the_program_with_a_reason) {
    for (const Arguments& arguments :
         {Arguments{"velk", "--conect"}, Arguments{"velk", "file"}, Arguments{"velk", "--tour"}}) {
        const Options options = parsed(arguments);
        ASSERT_TRUE(options.wrong) << arguments.back();
        EXPECT_NE(options.wrong->status, 0);
        EXPECT_NE(options.wrong->text.find(arguments.back()), std::string::npos);
    }
}

TEST(Options, for_help_and_version_are_answered_wherever_they_stand) {
    for (const char* option : {"--help", "-h", "--version"}) {
        const Arguments arguments = {"velk", "--connect", option};
        const auto answer = answer_without_display(3, arguments.data());
        ASSERT_TRUE(answer) << option;
        EXPECT_EQ(answer->status, 0);
        EXPECT_NE(answer->text.find("elk"), std::string::npos);
    }
}

}  // namespace
}  // namespace velk
