#include "shell/drop_area.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include "managers/app_tablesource.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

class Drop_Test : public testing::Test {
  protected:
    Drop_Test() {
        open.connect();
        open.click("m_BT_Apps");
        EXPECT_TRUE(wait_until([] { return App_TableSource::g_can_click_load == 1; }));
        page = open.find("View_App");
    }
    /// What is dragged over the middle of the page; true when it is welcome.
    bool drag(const QList<QUrl>& files) {
        carried.setUrls(files);
        QDragEnterEvent event(page->rect().center(), Qt::MoveAction | Qt::CopyAction, &carried,
                              Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(page, &event);
        EXPECT_EQ(open.find("drop_area") != nullptr, event.isAccepted());
        EXPECT_TRUE(!event.isAccepted() || event.dropAction() == Qt::CopyAction);
        return event.isAccepted();
    }

    Open_Window open;
    QWidget* page = nullptr;
    QMimeData carried;
};

TEST_F(Drop_Test, welcomes_only_what_the_section_takes_and_when_it_takes_it) {
    const QUrl package = QUrl::fromLocalFile("/a.apk");
    EXPECT_TRUE(drag({QUrl::fromLocalFile("/b.txt"), package}));
    EXPECT_FALSE(drag({QUrl::fromLocalFile("/b.txt")}));
    EXPECT_FALSE(drag({QUrl("https://a.example/a.apk")}));
    App_TableSource::g_can_click_app_install = 0;
    EXPECT_FALSE(drag({package}));
    App_TableSource::g_can_click_app_install = 1;
    open.desktop.take_input(false);
    EXPECT_FALSE(drag({package}));
    open.desktop.take_input(true);
    EXPECT_TRUE(drag({package}));
}

TEST(Drop_Area_Test, hands_over_the_bytes_of_each_name_and_leaves_other_files_out) {
    test_application();
    std::vector<std::string> taken;
    const Dropped_Files section{.take = [&](const auto& paths) { taken = paths; },
                                .patterns = {"*.apk"}};
    QWidget page;
    const Drop_Area area(section, &page);
    QMimeData carried;
    carried.setUrls({QUrl("file:///a%FF%20%25%23.apk"), QUrl::fromLocalFile("/b.txt"),
                     QUrl::fromLocalFile("/C.APK")});
    QDragEnterEvent enter({}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&page, &enter);
    QDropEvent event({}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&page, &event);
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(taken, (std::vector<std::string>{"/a\xFF %#.apk", "/C.APK"}));
}

}  // namespace
}  // namespace velk
