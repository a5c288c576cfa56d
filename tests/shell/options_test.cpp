#include "shell/options.h"

#include <gtest/gtest.h>

#include <vector>

namespace velk {
namespace {

using Arguments = std::vector<const char*>;

Options parsed(const Arguments& arguments) {
    return options_of(static_cast<int>(arguments.size()), arguments.data());
}

TEST(Options, are_followed_in_any_order_or_end_the_program_with_a_reason) {
    const Options options = parsed({"velk", "--tour", "out", "--connect"});
    EXPECT_TRUE(options.connect && options.tour == "out" && !options.wrong);
    for (const Arguments& arguments :
         {Arguments{"velk", "--conect"}, Arguments{"velk", "file"}, Arguments{"velk", "--tour"}}) {
        const auto wrong = parsed(arguments).wrong;
        ASSERT_TRUE(wrong) << arguments.back();
        EXPECT_NE(wrong->status, 0);
        EXPECT_NE(wrong->text.find(arguments.back()), std::string::npos);
    }
    EXPECT_TRUE(answer_without_display(2, Arguments{"velk", "--help"}.data()));
}

}  // namespace
}  // namespace velk
