#include "shell/velk_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <csignal>

#include "ui/program_wide.h"
#include "ui/unix_signals.h"
#include "ui/worker.h"
#include "window_test.h"

namespace velk {
namespace {

class Velk_Window_Test : public testing::Test {
  protected:
    QString text(const char* name) { return open.find<QLabel>(name)->text(); }

    Open_Window open;
    MainDocument& document = *open.document;
};

TEST_F(Velk_Window_Test, shows_every_value_of_a_phone_under_its_name) {
    open.fill("Phone & <b>Co</b> \xff");
    EXPECT_EQ(open.window->windowTitle(), "Velk");
    EXPECT_FALSE(qApp->styleSheet().contains('@')) << "a colour that has no name";
    EXPECT_EQ(text("m_LB_MobileName"), QString::fromUtf8("Phone & <b>Co</b> \uFFFD"));
    EXPECT_EQ(open.find<QLabel>("m_LB_MobileName")->textFormat(), Qt::PlainText);
    EXPECT_EQ(open.find("m_LB_Size_PhoneTotal")->toolTip(), "5,000,000,000 bytes");
    EXPECT_EQ(open.find<QAbstractButton>("m_BT_SMS")->text(), "SMS(1500)");
    EXPECT_EQ(open.find<QProgressBar>("m_LevelIndicator_Size_Phone")->value(), 75);
    document.m_LevelIndicator_Size_Phone.set_value(-2147483647 - 1);
    open.turn();
    EXPECT_EQ(open.find<QProgressBar>("m_LevelIndicator_Size_Phone")->value(), 0);
}

TEST_F(Velk_Window_Test, draws_a_status_line_that_changes_often_only_as_often_as_it_is_seen) {
    int drawn = 0;
    Label label("label");
    Binding binding;
    QObject target;
    binding.bind(label, &target, [&] { ++drawn; });
    for (int i = 0; i < 20'000; ++i) label.set_text(std::to_string(i));
    open.turn();
    EXPECT_EQ(drawn, 2);
}

TEST_F(Velk_Window_Test, gives_the_room_to_the_summary_the_content_box_or_both) {
    const auto shown = [&] {
        open.window->bring_up_to_date();
        return std::pair(open.find("m_Control_Box1") != nullptr,
                         open.find("summary_page") != nullptr);
    };
    EXPECT_EQ(shown(), std::pair(true, true));
    document.hidden_some(true);
    EXPECT_EQ(shown(), std::pair(true, false));
    document.hidden_some(false);
    document.m_Control_Box1.put_in(nullptr);
    EXPECT_EQ(shown(), std::pair(false, true));
}

TEST_F(Velk_Window_Test, is_gone_from_the_screen_at_once_and_ends_in_time_while_work_runs) {
    Worker::start("slow", [&] { open.desktop.sleep(60); });
    QElapsedTimer time;
    QTimer::singleShot(0, open.window.get(), [&] {
        time.start();
        open.window->close();
        EXPECT_FALSE(open.window->isVisible());
        EXPECT_FALSE(open.desktop.closing());
    });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_TRUE(open.desktop.closing());
}

TEST_F(Velk_Window_Test, closes_when_the_system_asks_the_program_to_end) {
    for (const int number : {SIGTERM, SIGHUP}) {
        int asked = 0;
        const Unix_Signals ending(open.desktop, {number}, [&](int) { ++asked; });
        std::raise(number);
        EXPECT_TRUE(wait_until([&] { return asked == 1; }));
    }
}

}  // namespace
}  // namespace velk
