#include "ui/busy_line.h"

#include <gtest/gtest.h>

#include "support/test_desktop.h"

namespace velk {
namespace {

TEST(BusyLine, ShowsTheNewestWaitThatIsStillUnderWay) {
    Test_Desktop desktop;
    Busy_Line line;
    const auto shown = [&] {
        desktop.pump();
        return line.m_LB_Busy.text();
    };
    {
        Busy_Note first(desktop, line, "first");
        {
            const Busy_Note second(desktop, line, "second");
            first.say("first, further on");
            EXPECT_EQ(shown(), "second");
        }
        EXPECT_EQ(shown(), "first, further on");
    }
    EXPECT_EQ(shown(), "");
}

}  // namespace
}  // namespace velk
