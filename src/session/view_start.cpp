#include <array>

#include "session/main_document.h"
#include "session/views.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

namespace {

constexpr float seconds_of_a_step = 0.3F;
constexpr float seconds_before_a_switch = 0.6F;
constexpr int most_steps = 99;  // so one animation lasts half a minute at the most
constexpr int points = 4;

}  // namespace

View_Start::View_Start() : Connection_View("View_Start") {
    g_View_Start = this;
    for (Image* point : all_points()) {
        point->set_picture(g_PicFileName_LoadingAnimation_Gray);
        point->set_hidden(true);
    }
    m_Image_USB_Line.set_picture("usbLine.png");
    m_LB_Msg_ConnectPhone.set_text("Connect your Android phone with a USB cable.");
    m_LB_ConnectingYourPhone.set_text("Connecting your phone...");
    m_LB_ConnectingYourPhone.set_hidden(true);
}

View_Start::~View_Start() {
    g_View_Start = nullptr;
}

void View_Start::Start_Loading_Animation() {
    Loading_Animation(g_PicFileName_LoadingAnimation_Gray, g_PicFileName_LoadingAnimation_Light,
                      seconds_of_a_step);
}

void View_Start::Stop_Loading_Animation() {
    managedObjectContext->desktop().perform([] { g_loading_animation_stop = 1; });
}

void View_Start::Loading_Animation(const std::string& PictureGray, const std::string& PictureLight,
                                   float TimeInterval) {
    For_Thread_Var arguments;
    arguments.m_PicFileName_LoadingAnimation_Gray = PictureGray;
    arguments.m_PicFileName_LoadingAnimation_Light = PictureLight;
    arguments.m_TimeInterval = TimeInterval;
    managedObjectContext->desktop().perform([this, arguments] {
        if (!g_can_click_loading_animation) return;
        g_can_click_loading_animation = 0;
        g_loading_animation_stop = 0;
        if (!Worker::start("animation", [this, arguments] { animate(arguments); }))
            g_can_click_loading_animation = 1;
    });
}

std::array<Image*, 4> View_Start::all_points() {
    return {&m_Image_loading_1, &m_Image_loading_2, &m_Image_loading_3, &m_Image_loading_4};
}

// Worker.
void View_Start::animate(const For_Thread_Var& arguments) {
    Desktop& desktop = managedObjectContext->desktop();
    switch_to_points(true);
    light(no_point, arguments);
    bool asked_to_stop = false;
    for (int step = 0; step < most_steps && !desktop.closing(); ++step) {
        asked_to_stop = desktop.ask([] { return g_loading_animation_stop == 1; });
        if (asked_to_stop) break;
        light(step % points, arguments);
        desktop.sleep(static_cast<double>(arguments.m_TimeInterval));
    }
    // An animation that has run out of steps stays as it is, its last point lit.
    if (asked_to_stop) switch_to_points(false);
    desktop.post([] { g_can_click_loading_animation = 1; });
}

void View_Start::switch_to_points(bool to_points) {
    Desktop& desktop = managedObjectContext->desktop();
    desktop.sleep(static_cast<double>(seconds_before_a_switch));
    desktop.post([this, to_points] {
        for (Image* point : all_points()) point->set_hidden(!to_points);
        m_LB_ConnectingYourPhone.set_hidden(!to_points);
        m_Image_USB_Line.set_hidden(to_points);
        m_LB_Msg_ConnectPhone.set_hidden(to_points);
    });
}

void View_Start::light(int lit, const For_Thread_Var& arguments) {
    managedObjectContext->desktop().post([this, lit, arguments] {
        for (int point = 0; point < points; ++point)
            all_points()[static_cast<std::size_t>(point)]->set_picture(
                point == lit ? arguments.m_PicFileName_LoadingAnimation_Light
                             : arguments.m_PicFileName_LoadingAnimation_Gray);
    });
}

}  // namespace velk
