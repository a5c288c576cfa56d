// The sections of music, videos, photos and books: one program, four descriptions.
#include "managers/file_panes.h"

#include <filesystem>
#include <fstream>
#include <numeric>

#include "base/file.h"
#include "managers/tool_fixture.h"
#include "support/temporary_folder.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

class File_Panes : public Tool_Test {
  protected:
    enum Button { add, remove, save };
    struct Case {
        File_TableSource& pane;
        int code;
        const char* files;
        const char* loaded;
        const char* title;
        const char* folder;
        std::string delete_request;
        const char* row;
    };

    File_Panes() {
        finish();
        EXPECT_THAT(agent.codes(), testing::UnorderedElementsAre("115", "117", "118", "119"));
        for (const Case& each : cases) {
            recorder.watch(each.pane.m_LB_TIPS);
            recorder.watch(each.pane.m_table);
        }
    }
    ~File_Panes() override { window.test_desktop.end_work(); }

    /// Loads files with these paths and the ids 7, 8 ..., and selects them all.
    void load(const Case& each, const Lines& paths) {
        const auto field = Agent_Double::field;
        std::string bytes(7, '\0');
        std::size_t id = 7;
        for (const std::string& path : paths) {
            if (each.code != 119) bytes += Agent_Double::number(id++);
            if (each.code == 115) bytes += field("Ann") + field("Blue");
            bytes += field(path);
            if (each.code <= 117) bytes += field("61000");
            bytes += field("1536");
            if (each.code == 115) bytes += "\0\1"s;
            if (each.code == 119) bytes += field("");
        }
        agent.reply_to(each.code, bytes);
        recorder.clear();
        each.pane.OnBT_Refresh();
        finish();
        std::vector<int> rows(paths.size());
        std::iota(rows.begin(), rows.end(), 0);
        each.pane.m_table.select(rows, 0);
    }
    void export_to(const Case& each, const std::string& folder) {
        window.test_desktop.choose_file(folder);
        press(each.pane, save);
    }

    Music_TableSource music{window};
    Video_TableSource video{window};
    Photo_TableSource photo{window};
    Book_TableSource book{window};
    const std::vector<Case> cases = {
        {music, 115, "musics", "There are 2 musics on your mobile phone.", "title 3: Music(2)",
         "/sdcard/music", "P\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s,
         "2 Ann Blue /b/b 00:01:01 1.50 KB 8 1 "},
        {video, 117, "videos", "There are 2 videos on your Mobile Phone.", "title 5: Videos(2)",
         "/sdcard/movies", "R\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s, "2 /b/b 00:01:01 1.50 KB 8 "},
        {photo, 118, "photos", "There are 2 photos on your Mobile Phone.", "title 4: Photos(2)",
         "/sdcard/photo", "T\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s, "2 /b/b 1.50 KB 8 "},
        {book, 119, "books", "There are 2 books on your Mobile Phone.", "title 6: Books(2)",
         "/sdcard/book", "9\0\x09\0\0\0\x05\0\0\0/b/b|"s, "2 /b/b  1.50 KB "}};
    const Case& photos = cases[2];
};

TEST_F(File_Panes, tell_their_load_row_by_row) {
    for (const Case& each : cases) {
        load(each, {"/a", "/b/b"});
        const std::string table = each.pane.m_table.name(), end = " "s + each.files + "......";
        EXPECT_THAT(
            recorder.lines(),
            ElementsAre(table + " reloaded: 0 rows", table + ": 1 rows", table + " scrolled",
                        "m_LB_TIPS: Loading No.1 '/a'" + end, table + ": 2 rows",
                        table + " scrolled", "m_LB_TIPS: Loading No.2 '/b/b'" + end,
                        "m_LB_TIPS: "s + each.loaded, each.title, "captions white"));
        const Table_Rows& rows = each.pane.m_table.rows();
        std::string row;
        for (int i = 0; i < static_cast<int>(rows.columns().size()); ++i)
            row += rows.cell(1, i) + " ";
        EXPECT_EQ(row, each.row);
    }
}

TEST_F(File_Panes, add_nothing_to_another_phone) {
    during_an_edit(
        'l',
        [this] {
            photo.section.drop.take({"/1.jpg", "/2.jpg", "/3.jpg"});
        },
        swap_phones);
    EXPECT_EQ(edits().size(), 1U);
    EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "push", "/1.jpg", "/sdcard/photo"}));
    EXPECT_EQ(photo.quiet.m_LB_Quiet.text(), "2 of 3 failed: " + std::string(another_phone));
}

TEST_F(File_Panes, add_with_every_line_in_its_order_and_reload_behind_the_message) {
    adb.answer("push", "adb: error: full\n");
    for (const Case& each : cases)
        for (const std::string& path : {"/home/it's me.x"s, ""s}) {
            agent.reply_once_to('l', path.empty() ? "" : "ok");
            window.test_desktop.choose_file(path);
            press(each.pane, add);
            Lines lines = {"panel: ", path.empty()
                                          ? "m_LB_TIPS: Failed to add ''!"
                                          : "m_LB_TIPS: Added '" + path + "' successfully!"};
            if (&each.pane != &photo)
                lines.push_back("m_LB_TIPS: Starting install this application to your phone...");
            lines.push_back("message: Added " + path +
                            " successfully!\n\nPlease re-connect your mobile phone.");
            EXPECT_EQ(lines_before_the_load(), lines);
            EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "push", path, each.folder}));
            EXPECT_EQ(edits().back(),
                      sock_apk::add_command_for_music_image_video_book(108, path.c_str()));
            EXPECT_EQ(agent.codes().back(), std::to_string(each.code));
            EXPECT_EQ(each.pane.quiet.m_LB_Quiet.text(), "adb: error: full");
        }
}

TEST_F(File_Panes, delete_what_is_selected_without_naming_it_and_reload) {
    for (const Case& each : cases) {
        load(each, {"/a", "/b/b", "/c"});
        each.pane.m_table.select({}, -1);
        press(each.pane, remove);
        each.pane.m_table.select({1, 2}, 2);
        window.test_desktop.answer_alert(yes);
        for (const char* reply : {"", "ok"}) agent.reply_once_to(each.delete_request[0], reply);
        const std::size_t before = edits().size();
        press(each.pane, remove);
        const std::string blank = &each.pane == &book ? "''" : "':'";
        EXPECT_THAT(lines_before_the_load(),
                    ElementsAre("alert: Delete the selected record?",
                                "m_LB_TIPS: Failed to delete " + blank + "!",
                                "m_LB_TIPS: Deleted " + blank + " successfully!",
                                each.pane.m_table.name() + " reloaded: 1 rows",
                                "m_LB_TIPS: Starting to delete record from your phone..."));
        ASSERT_EQ(edits().size(), before + 2);
        EXPECT_EQ(edits()[before], each.delete_request);
        EXPECT_EQ(agent.codes().back(), std::to_string(each.code));
    }
}

TEST_F(File_Panes, export_each_selected_file_and_count_those_that_failed) {
    const Temporary_Folder folder;
    const std::string where = folder.path("");
    adb.answer("pull", {.pulled = "new"});
    adb.answer("pull /p/b", "no such file\n");
    for (const Case& each : cases) {
        load(each, {"/p/a", "/p/b"});
        export_to(each, "");
        export_to(each, where);
        EXPECT_THAT(
            recorder.lines(),
            ElementsAre("panel: ", "m_LB_TIPS: Successfully saved '(1)/p/a' to '" + where + "'.",
                        "m_LB_TIPS: Faild to save '(2)/p/b' to '" + where + "'.",
                        "message: Saved 2 musics file to '" + where + "' successfully!"));
        EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "pull", "/p/b", where}));
        EXPECT_EQ(each.pane.quiet.m_LB_Quiet.text(), "1 of 2 failed: no such file");
        each.pane.m_table.select({}, -1);
        export_to(each, where);
        EXPECT_THAT(recorder.lines(), ElementsAre("panel: ", "beep"));
    }
}

TEST_F(File_Panes, export_over_no_file_out_of_no_folder_and_leave_no_part) {
    const Temporary_Folder folder;
    const std::string long_name = "\xFF" + std::string(254, 'x');
    for (const std::string& name : {"a 'b'.jpg"s, "bad.jpg"s, long_name})
        std::ofstream(folder.path(name)) << "old";
    adb.answer("pull", {.pulled = "new"});
    for (const char* failing : {"pull /p/bad.jpg", "pull /p/part.jpg"})
        adb.answer(failing, {.output = "adb: error: disk\n", .pulled = "part"});
    adb.answer("pull /p/cut.jpg", {.behaviour = Fake_Adb::Behaviour::crashes, .pulled = "part"});
    load(photos, {"/p/a 'b'.jpg", "/q/a 'b'.jpg", "/p/bad.jpg", "/p/part.jpg", "/p/cut.jpg",
                  "/p/" + long_name, "/p/..", "/p/.", "/p/", "-p"});
    export_to(photos, folder.path(""));
    EXPECT_THAT(recorder.lines_of("m_LB_TIPS: Faild to save"), testing::SizeIs(7));
    EXPECT_THAT(photo.quiet.m_LB_Quiet.text(), testing::StartsWith("7 of 10 failed: "));
    load(photos, {"/p/cut.jpg"});
    export_to(photos, folder.path(""));
    EXPECT_EQ(photo.quiet.m_LB_Quiet.text(), "The copy was cut off.");
    EXPECT_EQ(adb.calls().size(), 7U);
    std::map<std::string, std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(folder.path("")))
        files[file.path().filename()] = read_whole_file(file.path()).value_or("none");
    const std::string long_2 = long_name.substr(0, 251) + " (2)";
    EXPECT_EQ(files, (std::map<std::string, std::string>{{"a 'b'.jpg", "old"},
                                                         {"a 'b' (2).jpg", "new"},
                                                         {"a 'b' (3).jpg", "new"},
                                                         {"bad.jpg", "old"},
                                                         {long_name, "old"},
                                                         {long_2, "new"}}));
}

TEST_F(File_Panes, give_a_file_its_name_back_when_the_window_closes_during_a_copy) {
    const Temporary_Folder folder;
    std::ofstream(folder.path("a.jpg")) << "old";
    adb.answer("pull", {.behaviour = Fake_Adb::Behaviour::hangs, .pulled = "part"});
    load(photos, {"/p/a.jpg", "/p/b.jpg"});
    window.test_desktop.choose_file(folder.path(""));
    photo.OnBT_Export_Photo();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return adb.is_hanging(); }));
    EXPECT_EQ(window.busy.m_LB_Busy.text(), "Copying 1 of 2");
    window.test_desktop.end_work();
    EXPECT_EQ(read_whole_file(folder.path("a.jpg")), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path("")), {}), 1);
    Photo_TableSource::g_can_click_photo_export = 1;
}

}  // namespace
}  // namespace velk
