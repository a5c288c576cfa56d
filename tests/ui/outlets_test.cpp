#include "ui/outlets.h"

#include <gtest/gtest.h>

#include <thread>

#include "support/outlet_recorder.h"

namespace velk {
namespace {

TEST(Outlets, EveryChangeIsToldAlsoOneToTheSameValue) {
    Label label("m_LB");
    Button button("m_BT");
    Level_Indicator gauge("m_Level", 5);
    Outlet_Recorder recorder;
    recorder.watch(label);
    recorder.watch(button);
    recorder.watch(gauge);
    label.set_text("Loading");
    label.set_text("Loading");
    label.set_tool_tip("1,024");
    label.set_hidden(true);
    label.set_hidden(true);
    label.set_hidden(false);
    button.set_title("SMS(2)");
    button.set_colour(white);
    button.set_centred(true);
    gauge.set_value(-1);
    EXPECT_EQ(recorder.lines(), (std::vector<std::string>{
                                    "m_LB: Loading", "m_LB: Loading", "m_LB tool tip: 1,024",
                                    "m_LB hidden", "m_LB hidden", "m_LB shown", "m_BT: SMS(2)",
                                    "m_BT colour: 255 255 255", "m_BT centred", "m_Level: -1"}));
}

TEST(OutletsDeathTest, AWorkerThatWritesOneDirectlyIsCaught) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEBUG_DEATH(
        {
            this_is_the_ui_thread();
            Label label("m_LB");
            std::thread([&] { label.set_text("from a worker"); }).join();
        },
        "on_ui_thread");
}

}  // namespace
}  // namespace velk
