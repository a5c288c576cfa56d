#include <algorithm>

#include "session/session_fixture.h"

namespace velk {
namespace {

class Start_View : public Session {
  protected:
    View_Start& view = *g_View_Start;

    /// The four points as they look: "..*." when the third is lit.
    std::string points() const {
        std::string all;
        for (const Image* image : {&view.m_Image_loading_1, &view.m_Image_loading_2,
                                   &view.m_Image_loading_3, &view.m_Image_loading_4})
            all += image->picture() == "connectingPoint.png" ? '*' : '.';
        return all;
    }
};

TEST_F(Start_View, freezes_with_its_last_point_lit_after_99_steps) {
    std::vector<std::string> seen;
    const auto watching = view.m_Image_loading_4.observe([&](const Outlet& last) {
        if (last.last_change() == "picture") seen.push_back(points());
    });
    view.Start_Loading_Animation();
    view.Start_Loading_Animation();  // a second start finds it running
    ASSERT_TRUE(desktop.pump_until([] { return g_can_click_loading_animation == 1; }));

    ASSERT_EQ(seen.size(), 100U);  // all unlit, then 99 steps
    EXPECT_EQ(seen[0], "....");
    for (std::size_t step = 1; step < seen.size(); ++step)
        EXPECT_EQ(seen[step], std::string("....").replace((step - 1) % 4, 1, "*")) << step;
    EXPECT_EQ(std::count(desktop.notes().begin(), desktop.notes().end(), "sleep 0.3"), 99);
    EXPECT_EQ(std::count(desktop.notes().begin(), desktop.notes().end(), "sleep 0.6"), 1);
}

}  // namespace
}  // namespace velk
