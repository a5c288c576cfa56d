// The sections of music, videos, photos and books: one program, four descriptions.
#include <filesystem>
#include <fstream>

#include "base/file.h"
#include "bridge/adb_wrappers.h"
#include "managers/file_panes.h"
#include "managers/manager_fixture.h"
#include "support/fake_adb.h"
#include "support/temporary_folder.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

using Lines = std::vector<std::string>;

std::string text(const std::string& bytes) {
    return Agent_Double::number(bytes.size()) + bytes;
}

/// The reply to a request for a list, of files with these paths and the ids 7, 8 ...
std::string list(int code, const Lines& paths) {
    std::string bytes(7, '\0');
    std::size_t id = 7;
    for (const std::string& path : paths) {
        const std::string number = Agent_Double::number(id++);
        const std::string size = text("1536");
        switch (code) {
            case 115:
                bytes += number + text("Ann") + text("Blue") + text(path) + text("61000") + size +
                         "\0\1"s;
                break;
            case 117:
                bytes += number + text(path) + text("61000") + size;
                break;
            case 118:
                bytes += number + text(path) + size;
                break;
            default:
                bytes += text(path) + size + text("");
        }
    }
    return bytes;
}

class File_Panes : public Manager_Test {
  protected:
    struct Case {
        File_TableSource& pane;
        int code;
        const char* files;
        const char* loaded;
        const char* title;
        const char* folder;
        std::string delete_request;
        Lines row;
    };

    File_Panes() {
        finish();  // each loads when it is made
        for (File_TableSource* pane :
             {static_cast<File_TableSource*>(&music), static_cast<File_TableSource*>(&video),
              static_cast<File_TableSource*>(&photo), static_cast<File_TableSource*>(&book)}) {
            EXPECT_TRUE(pane->m_LB_TIPS.text().starts_with("There are 0 "));
            recorder.watch(pane->m_LB_TIPS);
            recorder.watch(pane->m_table);
        }
        EXPECT_THAT(agent.codes(), UnorderedElementsAre("115", "117", "118", "119"));
        g_adb_tool_file = adb.tool();
        g_device_serial_number = "R58 M";
        recorder.clear();
    }
    ~File_Panes() override { window.test_desktop.end_work(); }

    void load(const Case& each, const Lines& paths) {
        agent.reply_to(each.code, list(each.code, paths));
        each.pane.OnBT_Refresh();
        finish();
    }
    void export_all(const Case& each, const std::string& folder) {
        std::vector<int> rows(static_cast<std::size_t>(each.pane.m_table.rows().count()));
        for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<int>(i);
        each.pane.m_table.select(rows, 0);
        window.test_desktop.choose_file(folder);
        each.pane.section.commands[2].run();
        finish();
    }

    Fake_Adb adb;
    Music_TableSource music{window};
    Video_TableSource video{window};
    Photo_TableSource photo{window};
    Book_TableSource book{window};
    const std::vector<Case> cases = {
        {music,
         115,
         "musics",
         "There are 2 musics on your mobile phone.",
         "title 3: Music(2)",
         "/sdcard/music",
         "P\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s,
         {"2", "Ann", "Blue", "/b/b", "00:01:01", "1.50 KB", "8", "1"}},
        {video,
         117,
         "videos",
         "There are 2 videos on your Mobile Phone.",
         "title 5: Videos(2)",
         "/sdcard/movies",
         "R\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s,
         {"2", "/b/b", "00:01:01", "1.50 KB", "8"}},
        {photo,
         118,
         "photos",
         "There are 2 photos on your Mobile Phone.",
         "title 4: Photos(2)",
         "/sdcard/photo",
         "T\0\x0c\0\0\0\x08\0\0\0/b/b*8*|"s,
         {"2", "/b/b", "1.50 KB", "8"}},
        {book,
         119,
         "books",
         "There are 2 books on your Mobile Phone.",
         "title 6: Books(2)",
         "/sdcard/book",
         "9\0\x09\0\0\0\x05\0\0\0/b/b|"s,
         {"2", "/b/b", "", "1.50 KB"}}};
    const Case& photos = cases[2];
};

TEST_F(File_Panes, tell_their_load_row_by_row_and_what_the_phone_counts_more) {
    g_int_count_videos = 3;
    for (const Case& each : cases) {
        recorder.clear();
        load(each, {"/a", "/b/b"});
        const std::string table = each.pane.m_table.name();
        const std::string end = " "s + each.files + "......";
        EXPECT_THAT(
            recorder.lines(),
            ElementsAre(table + " reloaded: 0 rows", table + ": 1 rows", table + " scrolled",
                        "m_LB_TIPS: Loading No.1 '/a'" + end, table + ": 2 rows",
                        table + " scrolled", "m_LB_TIPS: Loading No.2 '/b/b'" + end,
                        "m_LB_TIPS: "s + each.loaded, each.title, "captions white"));
        Lines row;
        for (std::size_t i = 0; i < each.pane.m_table.rows().columns().size(); ++i)
            row.push_back(each.pane.m_table.rows().cell(1, static_cast<int>(i)));
        EXPECT_EQ(row, each.row);
        EXPECT_EQ(each.pane.quiet.m_LB_Quiet.text().empty(), &each.pane != &video);
    }
    g_int_count_videos = 0;
}

TEST_F(File_Panes, add_with_every_line_in_its_order_and_reload_behind_the_message) {
    adb.answer("push", "adb: error: full\n");
    for (const Case& each : cases)
        for (const std::string& path : {"/home/it's me.x"s, ""s}) {
            agent.reply_once_to('l', path.empty() ? "" : "ok");
            window.test_desktop.choose_file(path);
            recorder.clear();
            each.pane.section.commands[0].run();
            finish();
            Lines lines = {"panel: ",
                           "m_LB_TIPS: " + (path.empty() ? "Failed to add ''!"
                                                         : "Added '" + path + "' successfully!")};
            if (&each.pane != &photo)
                lines.push_back("m_LB_TIPS: Starting install this application to your phone...");
            lines.push_back("message: Added " + path +
                            " successfully!\n\nPlease re-connect your mobile phone.");
            lines.push_back(each.pane.m_table.name() + " reloaded: 0 rows");
            EXPECT_EQ(Lines(recorder.lines().begin(),
                            recorder.lines().begin() + static_cast<long>(lines.size())),
                      lines);
            EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "push", path, each.folder}));
            EXPECT_EQ(edits().back(),
                      sock_apk::add_command_for_music_image_video_book(108, path.c_str()));
            EXPECT_EQ(agent.codes().back(), std::to_string(each.code));
            EXPECT_EQ(each.pane.quiet.m_LB_Quiet.text(), "adb: error: full");
        }
    EXPECT_EQ(window.test_desktop.file_panels()[0].message, "select a file");
    photo.section.take_files({"/1", "/2"});
    finish();
    EXPECT_THAT(
        recorder.lines(),
        Contains("message: Added 2 files successfully!\n\nPlease re-connect your mobile phone."));
}

TEST_F(File_Panes, delete_what_is_selected_without_naming_it_and_reload) {
    for (const Case& each : cases) {
        load(each, {"/a", "/b/b", "/c"});
        each.pane.OnBT_Delete();  // nothing is selected
        const std::string blank = &each.pane == &book ? "''" : "':'";
        each.pane.m_table.select({1, 2}, 2);
        window.test_desktop.answer_alert(yes);
        agent.reply_once_to(each.delete_request[0], "");
        agent.reply_once_to(each.delete_request[0], "ok");
        recorder.clear();
        const std::size_t before = edits().size();
        each.pane.OnBT_Delete();
        finish();
        const std::string table = each.pane.m_table.name();
        EXPECT_THAT(Lines(recorder.lines().begin(), recorder.lines().begin() + 6),
                    ElementsAre("alert: Delete the selected record?",
                                "m_LB_TIPS: Failed to delete " + blank + "!",
                                "m_LB_TIPS: Deleted " + blank + " successfully!",
                                table + " reloaded: 1 rows",
                                "m_LB_TIPS: Starting to delete record from your phone...",
                                table + " reloaded: 0 rows"));
        ASSERT_EQ(edits().size(), before + 2);
        EXPECT_EQ(edits()[before], each.delete_request);
        EXPECT_EQ(each.pane.selected_row, -1);
        EXPECT_EQ(agent.codes().back(), std::to_string(each.code));
    }
    EXPECT_EQ(window.test_desktop.alerts()[0].title, "Delete the selected record?");
}

TEST_F(File_Panes, export_each_selected_file_and_count_those_that_failed) {
    const Temporary_Folder folder;
    const std::string where = folder.path("");
    adb.answer("pull /p/b", "no such file\n");
    for (const Case& each : cases) {
        load(each, {"/p/a", "/p/b"});
        recorder.clear();
        export_all(each, "");
        export_all(each, where);
        EXPECT_THAT(recorder.lines(),
                    ElementsAre("panel: ", "panel: ",
                                "m_LB_TIPS: Successfully saved '(1)/p/a' to '" + where + "'.",
                                "m_LB_TIPS: Faild to save '(2)/p/b' to '" + where + "'.",
                                "message: Saved 2 musics file to '" + where + "' successfully!"));
        EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "pull", "/p/b", where}));
        EXPECT_EQ(each.pane.quiet.m_LB_Quiet.text(), "no such file");
        each.pane.m_table.select({}, -1);
        recorder.clear();
        window.test_desktop.choose_file(where);
        each.pane.section.commands[2].run();
        finish();
        EXPECT_THAT(recorder.lines(), ElementsAre("panel: ", "beep"));
    }
}

TEST_F(File_Panes, export_over_no_file_that_is_there_and_leave_no_part_of_one) {
    const Temporary_Folder folder;
    const std::string long_name = "\xFF" + std::string(253, 'x') + "y";
    const std::string long_2 = "\xFF" + std::string(250, 'x') + " (2)";
    std::filesystem::create_directory(folder.path("in"));
    for (const std::string& name : {"a 'b'.jpg"s, "bad.jpg"s, long_name})
        std::ofstream(folder.path("in/" + name)) << "old";
    adb.answer("pull", {.pulled = "new"});
    for (const char* failing : {"pull /p/bad.jpg", "pull /p/part.jpg"})
        adb.answer(failing, {.output = "adb: error: disk\n", .pulled = "part"});
    load(photos, {"/p/a 'b'.jpg", "/q/a 'b'.jpg", "/p/bad.jpg", "/p/part.jpg", "/p/" + long_name});
    export_all(photos, folder.path("in"));
    std::map<std::string, std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(folder.path("in")))
        files[file.path().filename()] = read_whole_file(file.path()).value_or("none");
    EXPECT_EQ(files, (std::map<std::string, std::string>{{"a 'b'.jpg", "old"},
                                                         {"a 'b' (2).jpg", "new"},
                                                         {"a 'b' (3).jpg", "new"},
                                                         {"bad.jpg", "old"},
                                                         {long_name, "old"},
                                                         {long_2, "new"}}));
}

TEST_F(File_Panes, export_nothing_for_a_path_that_leads_out_of_the_folder) {
    const Temporary_Folder folder;
    load(photos, {"/sdcard/..", "/sdcard/.", "/sdcard/", "-p", ""});
    export_all(photos, folder.path(""));
    EXPECT_THAT(recorder.lines_of("m_LB_TIPS: Faild to save"), testing::SizeIs(5));
    export_all(photos, folder.path("gone"));
    EXPECT_THAT(adb.calls(), testing::IsEmpty());
}

TEST_F(File_Panes, give_a_file_its_name_back_when_the_window_closes_during_a_copy) {
    const Temporary_Folder folder;
    std::ofstream(folder.path("a.jpg")) << "old";
    adb.answer("pull", {.behaviour = Fake_Adb::Behaviour::hangs, .pulled = "part"});
    load(photos, {"/p/a.jpg", "/p/b.jpg"});
    photo.m_table.select({0, 1}, 1);
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
