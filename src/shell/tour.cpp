#include "shell/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <utility>

#include "base/text.h"
#include "session/main_document.h"
#include "shell/velk_window.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr QSize size_of_pictures{1280, 800};
constexpr int milliseconds_between_looks = 20;
constexpr int longest_wait = 120'000;  // milliseconds at one stop

struct Section_Stop {
    int view;
    const char* button;
};

constexpr Section_Stop section_stops[] = {
    {DEFINE_VIEW_Contacts, "m_BT_Contacts"}, {DEFINE_VIEW_SMS, "m_BT_SMS"},
    {DEFINE_VIEW_App, "m_BT_Apps"},          {DEFINE_VIEW_Music, "m_BT_Music"},
    {DEFINE_VIEW_Photo, "m_BT_Photo"},       {DEFINE_VIEW_Video, "m_BT_Video"},
    {DEFINE_VIEW_Book, "m_BT_Book"},
};

void press_and_release(QWidget* target) {
    const QPointF at = QRectF(target->rect()).center();
    const QPointF on_screen = target->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, on_screen, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, on_screen, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(target, &press);
    QCoreApplication::sendEvent(target, &release);
}

/// A short attempt may be over before the first point is lit.
bool the_points_run() {
    const Image& first = g_View_Start->m_Image_loading_1;
    const bool lit = first.picture() == g_PicFileName_LoadingAnimation_Light;
    return !first.hidden() && (lit || g_loading_animation_stop);
}

bool all_guards_are_up(const Section& section) {
    return std::all_of(section.commands.begin(), section.commands.end(),
                       [](const Command& each) { return !each.guard || *each.guard; });
}

}  // namespace

Tour::Tour(MainDocument& document, Velk_Window& window, std::string folder)
    : document_(document), window_(window), folder_(std::move(folder)) {
    window_.setFixedSize(size_of_pictures);
    // The mouse is out of the way before the window comes: no button looks touched in a picture.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    window_.show();
    timer_.setInterval(milliseconds_between_looks);
    connect(&timer_, &QTimer::timeout, this, &Tour::look);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        if (!finished_) fail("the window was closed");
    });
    if (QDir().mkpath(shown(folder_))) {
        plan();
        timer_.start();
        start_next();
    } else {
        fail("cannot make the folder " + folder_);
    }
}

void Tour::plan() {
    stops_.push_back(
        {"connecting", [this] { click("OnBT_Refresh"); }, [] { return the_points_run(); }, {}});
    stops_.push_back({"connected", {}, [this] { return attempt_has_ended(); }, {}});
    stops_.push_back({"summary", [this] { click("m_BT_MyAndroid"); },
                      [this] { return shows(nullptr); },
                      [this] { return summary_in_words(document_); }});
    plan_sections();
}

void Tour::plan_sections() {
    for (const auto& [id, button] : section_stops) {
        const MainViewController* const view =
            document_.m_views[static_cast<std::size_t>(id)].get();
        const Section* const section = view->section();
        if (!section) continue;
        std::string name = section->title;
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char letter) { return std::tolower(letter); });
        stops_.push_back({name, [this, caption = button] { click(caption); },
                          [this, view, section] {
                              return shows(view) && all_guards_are_up(*section) &&
                                     document_.busy.m_LB_Busy.text().empty();
                          },
                          [section] {
                              return format("%s: %d rows\n", section->title.c_str(),
                                            section->table->rows().count());
                          }});
    }
}

bool Tour::shows(const MainViewController* view) const {
    return document_.m_Control_Box1.view() == view;
}

bool Tour::attempt_has_ended() {
    if (!g_can_click_refresh || !g_can_click_loading_animation) return false;
    if (!g_connected_adb)
        fail("no phone was reached: " + document_.m_LB_Connected.text() + " (shown is " +
             document_.m_Control_Box1.view()->name() + ")");
    return !finished_;
}

void Tour::start_next() {
    if (stops_.empty()) return finish(0);
    waited_.start();
    if (stops_.front().start) stops_.front().start();
}

void Tour::look() {
    if (finished_) return;
    if (const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        return fail("the program asks: " + box->text().toStdString());
    const Stop stop = stops_.front();
    if (stop.reached()) {
        take_picture();
        if (stop.report) report_ += stop.report();
        if (finished_) return;
        stops_.pop_front();
        start_next();
    } else if (waited_.hasExpired(longest_wait)) {
        fail("waited too long for: " + stop.name);
    }
}

void Tour::take_picture() {
    window_.bring_up_to_date();
    const std::string file =
        format("%s/%02d-%s.png", folder_.c_str(), ++number_, stops_.front().name.c_str());
    QPixmap picture(size_of_pictures);
    window_.render(&picture);
    if (!picture.save(shown(file))) fail("cannot write " + file);
}

// Pages may have buttons of one name; the one that is seen is meant.
void Tour::click(const char* name) {
    for (auto* const button : window_.findChildren<QAbstractButton*>(QString::fromLatin1(name)))
        if (button->isVisible() && button->isEnabled()) return press_and_release(button);
    fail(std::string("no button to press: ") + name);
}

void Tour::fail(const std::string& reason) {
    std::fprintf(stderr, "velk: the tour ended early: %s\n", reason.c_str());
    finish(1);
}

void Tour::finish(int status) {
    if (std::exchange(finished_, true)) return;
    status_ = status;
    timer_.stop();
    std::printf("\n%s", report_.c_str());
    window_.close();
}

}  // namespace velk
