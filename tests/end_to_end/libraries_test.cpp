#include <fstream>
#include <set>

#include "base/file.h"
#include "end_to_end/demo_session.h"
#include "session/section_views.h"

namespace velk {
namespace {

using Libraries = On_The_Demo_Phone;

class Libraries_On : public Libraries, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Wires, Libraries_On, testing::Values<std::string>("first", "second"),
                         [](const auto& wire) { return wire.param; });

TEST_P(Libraries_On, are_there_after_a_connection_and_change_as_the_person_says) {
    connect({"--packet", "4096", "--wires", GetParam()});
    for (int id = DEFINE_VIEW_Music; id <= DEFINE_VIEW_Book; ++id)
        EXPECT_GT(document.m_views[static_cast<std::size_t>(id)]->section()->table->rows().count(),
                  0);
    auto& photos = dynamic_cast<View_Photo&>(*document.m_views[DEFINE_VIEW_Photo]).source;
    EXPECT_EQ(photos.quiet.m_LB_Quiet.text(), "");
    std::set<std::string> before;
    for (const auto& row : photos.table_rows) before.insert(row.photo_file_path);

    const std::string blocks(200000, 'p');  // more than one goes over at once
    const std::string no_text = GetParam() == "first" ? "\xFF" : "";
    const std::string names[] = {"it's \xE2\x98\xBA & [1]=" + no_text + ".jpg", "-d.jpg",
                                 ".hidden \"one\".jpg", std::string(251, 'n') + ".jpg"};
    std::filesystem::create_directories(file("a folder;*/deeper"));
    std::ofstream(file("a folder;*/deeper/in it.jpg")) << "deep";
    std::vector<std::string> added = {file("a folder;*")};
    for (const std::string& name : names) {
        std::ofstream(file(name)) << blocks << name;
        added.push_back(file(name));
    }
    desktop.answer_alert(0);
    photos.Add_Files(added);
    desktop.finish_work();
    std::vector<int> selected;
    for (int row = 0; row < photos.table_rows.count(); ++row)
        if (!before.contains(photos.table_rows[static_cast<std::size_t>(row)].photo_file_path))
            selected.push_back(row);
    ASSERT_EQ(selected.size(), added.size());

    std::filesystem::create_directory(file("out"));
    for (const std::string& name : names) std::ofstream(file("out/" + name)) << "before";
    photos.m_table.select(selected, selected.front());
    desktop.choose_file(file("out"));
    desktop.answer_alert(0);
    photos.OnBT_Export_Photo();
    desktop.finish_work();
    std::multiset<std::optional<std::string>> copied, expected = {"deep"};
    for (const auto& entry : std::filesystem::directory_iterator(file("out")))
        copied.insert(read_whole_file(entry.path()));
    for (const std::string& name : names) {
        EXPECT_EQ(read_whole_file(file("out/" + name)), "before");
        expected.insert({"before", blocks + name});
    }
    EXPECT_EQ(copied, expected);

    desktop.answer_alert(yes);
    photos.OnBT_Delete();
    desktop.finish_work();
    EXPECT_EQ(photos.table_rows.size(), before.size());
}

TEST_F(Libraries, of_applications_grow_and_shrink) {
    connect({"--later-services"});
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
