#include "ui/busy_line.h"

#include <gtest/gtest.h>

#include "support/outlet_recorder.h"
#include "support/test_desktop.h"

namespace velk {
namespace {

TEST(BusyLine, ShowsTheNewestWaitThatIsStillUnderWay) {
    Test_Desktop desktop;
    Busy_Line line;
    Outlet_Recorder recorder;
    recorder.watch(line.m_LB_Busy);
    {
        Busy_Note first(desktop, line, "first");
        {
            Busy_Note second(desktop, line, "second");
            first.say("first, further on");
        }
        desktop.pump();
    }
    desktop.pump();
    EXPECT_EQ(recorder.lines(), (std::vector<std::string>{
                                    "m_LB_Busy: first", "m_LB_Busy: second", "m_LB_Busy: second",
                                    "m_LB_Busy: first, further on", "m_LB_Busy: "}));
}

}  // namespace
}  // namespace velk
