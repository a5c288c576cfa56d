#include <fstream>

#include "base/file.h"
#include "end_to_end/demo_session.h"
#include "session/section_views.h"

namespace velk {
namespace {

using Libraries = On_The_Demo_Phone;

TEST_F(Libraries, are_there_after_a_connection_and_change_as_the_person_says) {
    connect({"--packet", "4096"});
    for (int id = DEFINE_VIEW_Music; id <= DEFINE_VIEW_Book; ++id)
        EXPECT_GT(document.m_views[static_cast<std::size_t>(id)]->section()->table->rows().count(),
                  0);
    auto& photos = dynamic_cast<View_Photo&>(*document.m_views[DEFINE_VIEW_Photo]).source;
    const std::size_t count = photos.table_rows.size();
    EXPECT_EQ(photos.quiet.m_LB_Quiet.text(), "");
    const std::string first = photos.table_rows[0].photo_file_path;

    const std::string name = "it's \xE2\x98\xBA & [1]=\xFF";
    std::ofstream(file(name + ".jpg")) << "picture";
    desktop.choose_file(file(name + ".jpg"));
    desktop.answer_alert(0);
    photos.OnBT_Add();
    desktop.finish_work();
    ASSERT_EQ(photos.table_rows.size(), count + 1);
    EXPECT_EQ(photos.table_rows[count].photo_file_path, "/sdcard/photo/" + name + ".jpg");

    std::filesystem::create_directory(file("out"));
    std::ofstream(file("out/" + name + ".jpg")) << "before";
    photos.m_table.select({0, static_cast<int>(count)}, 0);
    desktop.choose_file(file("out"));
    desktop.answer_alert(0);
    photos.OnBT_Export_Photo();
    desktop.finish_work();
    EXPECT_EQ(read_whole_file(file("out/" + name + ".jpg")), "before");
    EXPECT_EQ(read_whole_file(file("out/" + name + " (2).jpg")), "picture");
    EXPECT_TRUE(std::filesystem::exists(file("out/" + first.substr(first.rfind('/') + 1))));

    desktop.answer_alert(yes);
    photos.OnBT_Delete();
    desktop.finish_work();
    EXPECT_EQ(photos.table_rows.size(), count - 1);
}

TEST_F(Libraries, of_applications_grow_and_shrink) {
    connect({});
    document.OnBT_App();
    desktop.finish_work();
    App_TableSource& apps = *g_app_tablesource;
    const int count = apps.table_rows.count();
    std::ofstream(file("new one.apk")) << "package";
    for (const bool there : {true, false}) {
        apps.Install_APK_To_Phone(file(there ? "new one.apk" : "none.apk"));
        desktop.finish_work();
        EXPECT_EQ(apps.table_rows.count(), count + 1);
        EXPECT_EQ(apps.quiet.m_LB_Quiet.text().empty(), there);
    }
    apps.m_table.select({count}, count);
    desktop.answer_alert(yes);
    apps.OnBT_App_Uninstall();
    desktop.finish_work();
    EXPECT_EQ(apps.table_rows.count(), count);
}

}  // namespace
}  // namespace velk
