#include "shell/picture_list.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include "session/section_views.h"
#include "shell/thumbnail_image.h"
#include "ui/program_wide.h"
#include "ui/worker.h"
#include "window_test.h"

namespace velk {
namespace {

/// A tool that copies pictures from a folder which stands for the phone, and notes what it copied.
constexpr const char* tool = R"(#!/bin/sh
[ "$3" = pull ] || exit 1
echo "$4" >> "${0%/*}/pulled"
[ -e "${0%/*}/slow" ] && exec sleep 60
cp "${0%/*}/phone/${4##*/}" "$5"
)";

class Picture_List_Test : public testing::Test {
  protected:
    Picture_List_Test() {
        qputenv("XDG_CACHE_HOME", file("cache").c_str());
        std::filesystem::create_directory(file("phone"));
        std::ofstream(file("adb")) << tool;
        std::filesystem::permissions(file("adb"), std::filesystem::perms::owner_all);
        open.connect();
        EXPECT_TRUE(wait_until([this] { return !photos.is_loading(); }));
        g_adb_tool_file = file("adb");
        open.click("m_BT_Photo");
    }
    ~Picture_List_Test() override {
        g_adb_tool_file.clear();
        qunsetenv("XDG_CACHE_HOME");
    }

    std::string file(const std::string& name) { return folder.path().toStdString() + "/" + name; }
    void add_picture(const std::string& path, QSize size = {400, 300}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        image.save(QString::fromStdString(file("phone") + path.substr(path.rfind('/'))));
        const std::string number = std::to_string(photos.table_rows.size() + 1);
        photos.table_rows.push_back({number, number, path, "1.00 KB"});
        photos.m_table.reload_appended();
    }
    void show_pictures() {
        open.click("view_pictures");
        list = open.window->findChild<Picture_List*>();
        ASSERT_TRUE(wait_until([this] { return list->isVisible() && list->complete(); }));
    }
    std::size_t pulled() {
        std::ifstream lines(file("pulled"));
        std::size_t count = 0;
        for (std::string line; std::getline(lines, line);) ++count;
        return count;
    }
    bool has_picture(int row) { return !list->picture_of(list->model()->index(row, 0)).isNull(); }

    QTemporaryDir folder;
    Open_Window open;
    Photo_TableSource& photos =
        dynamic_cast<View_Photo&>(*open.document->m_views[DEFINE_VIEW_Photo]).source;
    Picture_List* list = nullptr;
};

TEST_F(Picture_List_Test, fetches_what_is_in_sight_once_and_leaves_no_other_file_behind) {
    for (int i = 0; i < 200; ++i) add_picture("/sdcard/a" + std::to_string(i) + ".png");
    std::ofstream(file("phone/a1.png")) << "no picture";
    show_pictures();
    const std::size_t in_sight = pulled();
    EXPECT_GT(in_sight, 4U);
    EXPECT_LT(in_sight, 60U);
    EXPECT_TRUE(has_picture(0));
    EXPECT_FALSE(has_picture(1));
    EXPECT_FALSE(has_picture(199));
    std::size_t kept = 0;
    for (const auto& each : std::filesystem::recursive_directory_iterator(file("cache")))
        kept += each.is_regular_file() ? 1 : 0;
    EXPECT_EQ(kept, in_sight);
    photos.m_table.reload();
    open.turn();
    ASSERT_TRUE(wait_until([this] { return list->complete(); }));
    EXPECT_EQ(pulled(), in_sight);
}

TEST_F(Picture_List_Test, leaves_the_phone_to_the_commands_of_all_sections_at_once) {
    std::ofstream(file("slow"));
    add_picture("/sdcard/a.png");
    open.click("view_pictures");
    list = open.window->findChild<Picture_List*>();
    ASSERT_TRUE(wait_until([this] { return pulled() == 1; }));
    open.desktop.post([] { App_TableSource::g_can_click_app_install = 0; });
    EXPECT_TRUE(wait_until([] { return Worker::running() == 0; }));
    std::filesystem::remove(file("slow"));
    list->repaint();
    open.turn();
    EXPECT_EQ(pulled(), 1U);
    open.desktop.post([] { App_TableSource::g_can_click_app_install = 1; });
    EXPECT_TRUE(wait_until([this] { return has_picture(0); }));
}

TEST_F(Picture_List_Test, shares_selection_search_and_keys_with_the_list) {
    for (const char* name : {"/1.png", "/2.png", "/3.png"}) add_picture(name);
    show_pictures();
    const QRect second = list->visualRect(list->model()->index(1, list->modelColumn()));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    EXPECT_EQ(photos.m_table.selected_rows(), std::vector<int>{1});
    QTest::keyClicks(open.find("m_table_Photo_search"), "2.");
    open.turn();
    EXPECT_EQ(list->model()->rowCount(), 1);
    EXPECT_TRUE(list->selectionModel()->isRowSelected(0));
    EXPECT_EQ(photos.selected_row, 1);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_TRUE(QApplication::activeModalWidget());
    open.desktop.drop_boxes();
}

TEST(Small_Picture, is_small_upright_and_never_larger_than_it_was) {
    test_application();
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    for (const auto& [was, is] :
         {std::pair(QSize(4000, 3000), QSize(160, 120)), std::pair(QSize(30, 3000), QSize(1, 120)),
          std::pair(QSize(96, 72), QSize(96, 72))}) {
        QImage image(was, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(path);
        EXPECT_EQ(thumbnail(small_picture(path.toStdString()), 1).size(), is);
    }
    EXPECT_EQ(small_picture(folder.filePath("none.png").toStdString()), "");
    QFile drawing(folder.filePath("drawing.jpg"));
    ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
    drawing.write("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    drawing.close();
    EXPECT_EQ(small_picture(drawing.fileName().toStdString()), "");
}

}  // namespace
}  // namespace velk
