#include <algorithm>

#include "session/session_fixture.h"

namespace velk {
namespace {

class Start_View : public Session {
  protected:
    View_Start& view = *g_View_Start;

    /// The number of the lit point, 0 for none, -1 when several are.
    int lit_point() {
        int lit = 0;
        int point = 0;
        for (const Image* image : {&view.m_Image_loading_1, &view.m_Image_loading_2,
                                   &view.m_Image_loading_3, &view.m_Image_loading_4}) {
            ++point;
            if (image->picture() == "connectingPoint.png") lit = lit == 0 ? point : -1;
        }
        return lit;
    }
    /// The points or the cable, with the words that belong to them; nothing of the other.
    bool shows_points(bool points) const {
        return view.m_Image_loading_1.hidden() != points &&
               view.m_LB_ConnectingYourPhone.hidden() != points &&
               view.m_Image_USB_Line.hidden() == points &&
               view.m_LB_Msg_ConnectPhone.hidden() == points;
    }
    static bool ended() { return g_can_click_loading_animation == 1; }
};

TEST_F(Start_View, freezes_with_its_last_point_lit_after_99_steps_and_starts_again) {
    std::vector<int> lit;
    const auto watching = view.m_Image_loading_4.observe([&](const Outlet& last) {
        if (last.last_change() == "picture") lit.push_back(lit_point());
    });
    view.Start_Loading_Animation();
    view.Start_Loading_Animation();  // a second start finds it running
    ASSERT_TRUE(desktop.pump_until(ended));

    ASSERT_EQ(lit.size(), 100U);  // all unlit, then 99 steps
    EXPECT_EQ(lit[0], 0);
    for (std::size_t step = 1; step < lit.size(); ++step)
        EXPECT_EQ(lit[step], static_cast<int>((step - 1) % 4) + 1) << step;
    EXPECT_TRUE(shows_points(true));
    EXPECT_EQ(std::count(desktop.notes().begin(), desktop.notes().end(), "sleep 0.3"), 99);
    EXPECT_EQ(std::count(desktop.notes().begin(), desktop.notes().end(), "sleep 0.6"), 1);

    view.Start_Loading_Animation();
    view.Stop_Loading_Animation();
    ASSERT_TRUE(desktop.pump_until(ended));
    EXPECT_TRUE(shows_points(false)) << "the cable does not return";
    EXPECT_EQ(lit_point(), 0);
}

}  // namespace
}  // namespace velk
