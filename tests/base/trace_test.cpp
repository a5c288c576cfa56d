#include "base/trace.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(Trace, IsPrintedAsItIsAndKeptWithoutItsTexts) {
    const std::string name = "Zoë";
    testing::internal::CaptureStdout();
    trace("begun ");
    trace("%s %s %d of %ld, 0x%08x 0x%lx 100%%\n", name, plain("told"), -3, 70L, 255U, 16UL);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "begun Zoë told -3 of 70, 0x000000ff 0x10 100%\n");
    EXPECT_TRUE(masked_trace().ends_with("begun *** told -3 of 70, 0x000000ff 0x10 100%\n"));

    trace("unended");
    log_line("logged [%s]", "Zoë");
    trace_request("Zoë");
    EXPECT_TRUE(masked_trace().ends_with("unended\nlogged [***]\ntext_command len=4\n"));
}

TEST(Trace, KeepsItsLastLinesAndNoMoreOfThemThanIsTold) {
    const std::string much(5000, 'x');
    for (int i = 1; i <= 3 * most_lines_kept; ++i) trace("line %d\n", i);
    EXPECT_TRUE(masked_trace().starts_with("line 1001\n"));
    EXPECT_TRUE(masked_trace().ends_with("line 1499\nline 1500\n"));
    for (int i = 0; i < 10; ++i) trace("%s", plain(much));
    trace("\nbehind\n");
    EXPECT_LT(masked_trace().size(), 20000U);
    EXPECT_TRUE(masked_trace().ends_with("x\nbehind\n"));
}

}  // namespace
}  // namespace velk
