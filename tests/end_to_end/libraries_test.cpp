#include <algorithm>
#include <fstream>

#include "base/file.h"
#include "end_to_end/demo_session.h"
#include "session/section_views.h"

namespace velk {
namespace {

class Libraries : public On_The_Demo_Phone {
  protected:
    void SetUp() override {
        On_The_Demo_Phone::SetUp();
        connect({"--packet", "4096"});
    }
    template <class View>
    auto& section(int id) {
        return dynamic_cast<View&>(*document.m_views[static_cast<std::size_t>(id)]).source;
    }
    static Photo_TableSource_Column row(const Photo_TableSource& photos, int index) {
        return photos.table_rows[static_cast<std::size_t>(index)];
    }
    std::string on_the_phone(const std::string& path) { return adb({"shell", "ls", path}); }
};

TEST_F(Libraries, of_files_are_there_after_a_connection_and_change_as_the_person_says) {
    auto& photos = section<View_Photo>(DEFINE_VIEW_Photo);
    const std::size_t count = photos.table_rows.size();
    EXPECT_EQ(document.m_BT_Photo.title(), "Photos(" + std::to_string(count) + ")");
    EXPECT_EQ(photos.quiet.m_LB_Quiet.text(), "");
    ASSERT_GT(section<View_Music>(DEFINE_VIEW_Music).table_rows.size(), 0U);
    ASSERT_GT(section<View_Video>(DEFINE_VIEW_Video).table_rows.size(), 0U);
    ASSERT_GT(section<View_Book>(DEFINE_VIEW_Book).table_rows.size(), 0U);

    const std::string name = "it's \xE2\x98\xBA & [1]=\xFF.jpg";
    std::ofstream(file(name)) << "picture";
    desktop.choose_file(file(name));
    desktop.answer_alert(0);
    photos.OnBT_Add();
    desktop.finish_work();
    ASSERT_EQ(photos.table_rows.size(), count + 1);
    const int added = static_cast<int>(count);
    EXPECT_EQ(row(photos, added).photo_file_path, "/sdcard/photo/" + name);

    std::filesystem::create_directory(file("out"));
    std::ofstream(file("out/" + name)) << "before";
    photos.m_table.select({0, added}, added);
    desktop.choose_file(file("out"));
    desktop.answer_alert(0);
    photos.OnBT_Export_Photo();
    desktop.finish_work();
    EXPECT_EQ(desktop.alerts().back().text,
              "Saved 2 musics file to '" + file("out") + "' successfully!");
    EXPECT_EQ(read_whole_file(file("out/" + name)), "before");
    EXPECT_EQ(read_whole_file(file("out/it's \xE2\x98\xBA & [1]=\xFF (2).jpg")), "picture");
    const std::filesystem::path first = row(photos, 0).photo_file_path;
    EXPECT_TRUE(std::filesystem::exists(file("out") / first.filename()));

    desktop.answer_alert(yes);
    photos.OnBT_Delete();
    desktop.finish_work();
    EXPECT_EQ(photos.table_rows.size(), count - 1);
    EXPECT_NE(row(photos, 0).photo_file_path, first.string());
}

TEST_F(Libraries, of_applications_grow_and_shrink) {
    document.OnBT_App();
    desktop.finish_work();
    auto& apps = *g_app_tablesource;
    const std::size_t count = apps.table_rows.size();
    EXPECT_EQ(document.m_BT_Apps.title(), "Apps(" + std::to_string(count) + ")");
    const std::string package = file("new one.apk");
    std::filesystem::copy_file(std::string(PROGRAM_FOLDER) + "/" + g_apk_install_file, package);
    desktop.choose_file(package);
    apps.OnBT_App_Install();
    desktop.finish_work();
    EXPECT_EQ(apps.quiet.m_LB_Quiet.text(), "");
    for (std::size_t i = 0; i < apps.table_rows.size(); ++i)
        std::cout << apps.table_rows[i].col_app_name_package << "\n";
    apps.Install_APK_To_Phone(file("none.apk"));
    desktop.finish_work();
    EXPECT_NE(apps.quiet.m_LB_Quiet.text(), "");

    const int last = apps.table_rows.count() - 1;
    apps.m_table.select({last}, last);
    desktop.answer_alert(yes);
    apps.OnBT_App_Uninstall();
    desktop.finish_work();
    EXPECT_EQ(apps.table_rows.count(), last);
}

}  // namespace
}  // namespace velk
