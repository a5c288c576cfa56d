#include "managers/file_tablesource.h"

#include <utility>

#include "base/trace.h"
#include "bridge/adb_command.h"
#include "managers/pull.h"
#include "ui/for_thread_var.h"

namespace velk {

namespace {

constexpr const char* delete_question = "Delete the selected record?";
constexpr const char* reconnect_text = "Please re-connect your mobile phone.";

}  // namespace

File_TableSource::File_TableSource(Main_Window& window, const File_Pane& pane, Table_Rows& rows)
    : Table_Source(window, {.name = pane.name,
                            .status = m_LB_TIPS,
                            .may_load = pane.may_load,
                            .button = pane.button,
                            .button_title = pane.button_title}),
      m_table(std::string("m_table_") + pane.name, rows),
      pane_(pane) {
    m_table.on_selection([this] { OnTable_Selected(); });
    section.title = pane.title;
    section.empty_text = format("The %s on your phone are listed here.", pane.files);
    section.search_text = format("Search %s", pane.files);
    section.table = &m_table;
    section.pictures = pane.pictures;
    take_drops({.take = [this](std::vector<std::string> paths) { Add_Files(std::move(paths)); },
                .hint = format("Drop files here to add them to the %s on your phone.", pane.files),
                .guard = &pane.may_add});
    section.adding = {.file = afresh([this] { choose_and_add(true, false); }),
                      .folder = afresh([this] { choose_and_add(false, true); }),
                      .guard = &pane.may_add};
    set_commands({
        {.name = "OnBT_Add",
         .caption = "Add",
         .icon = "add",
         .run = [this] { OnBT_Add(); },
         .guard = &pane.may_add,
         .keys = keys_of_add},
        {.name = "OnBT_Delete",
         .caption = "Delete",
         .icon = "delete",
         .run = [this] { OnBT_Delete(); },
         .guard = &pane.may_delete,
         .on_delete_key = true},
        {.name = pane.export_button,
         .caption = "Export",
         .icon = "export",
         .run = [this] { choose_folder_and_export(); },
         .guard = &pane.may_export,
         .keys = keys_of_export},
        refresh_command("OnBT_Refresh", [this] { OnBT_Refresh(); }),
    });
}

void File_TableSource::OnTable_Selected() {
    selected_row = m_table.selected_row();
}

void File_TableSource::start_loading() {
    start_load([this] { TableView_FullData(); });
}

void File_TableSource::reload_after_a_change() {
    list_may_be_old();
    OnBT_Refresh();
}

// --- add --------------------------------------------------------------------------------------

void File_TableSource::OnBT_Add() {
    choose_and_add(true, true);
}

void File_TableSource::choose_and_add(bool files, bool folders) {
    const File_Panel panel{.message = files ? "select a file" : "Select a folder",
                           .prompt = "OK",
                           .files = files,
                           .folders = folders};
    // A person who cancels adds the empty path, and reads that it failed.
    open_panel(panel, [this](const std::string& path) { Add_File_To_Phone(path); });
}

void File_TableSource::Add_Files(std::vector<std::string> paths) {
    start_guarded(desktop(), pane_.may_add, "add files",
                  [this, paths = std::move(paths), tool = phone_tool(desktop())](
                      Held_Flag& adding) { thread_do_add_file_function(paths, tool, adding); });
}

void File_TableSource::thread_do_add_file_function(const std::vector<std::string>& paths,
                                                   const Phone_Tool& tool, Held_Flag& adding) {
    for_each_on(tool.serial, "Copying to the phone", paths,
                [&](const std::string& path) { return add_file(path, tool); });
    adding.give_back();
    const std::string added = paths.size() == 1 ? paths.front() : format("%zu files", paths.size());
    window_.show_message(format("Added %s successfully!\n\n%s", added.c_str(), reconnect_text));
    post([this] { reload_after_a_change(); });
}

Outcome File_TableSource::add_file(const std::string& path, const Phone_Tool& tool) {
    tool.log_with(path);
    post_change();
    const std::string failure = failure_in(
        ADB_Command().Push_File_To_Android(tool.path, tool.serial, path, pane_.phone_folder));
    sock_apk phone;
    // The copy may have taken long: the agent is that of the phone in use by now.
    const bool same_phone = phone_in_use(desktop()) == tool.serial;
    const bool added = same_phone && phone.add_one_for_music_image_video_book(
                                         phone.getCommand_AddMusicFile(), path.c_str());
    post_status(format(added ? "Added '%s' successfully!" : "Failed to add '%s'!", path.c_str()));
    if (*pane_.after_add != '\0') post_status(pane_.after_add);
    if (!same_phone) return {false, another_phone};
    return {added && failure.empty(), failure.empty() ? phone.refusal() : failure};
}

// --- delete -----------------------------------------------------------------------------------

void File_TableSource::OnBT_Delete() {
    if (selected_row == -1) return;
    Alert question = yes_or_no(delete_question);
    question.title = delete_question;
    ask_person(question, [this] { Delete_Record("", ""); });
}

void File_TableSource::Delete_Record(const std::string& id, const std::string& andMusicPath) {
    For_Thread_Var arguments;
    arguments.record_id = id;
    arguments.record_file_name = andMusicPath;
    start_guarded(desktop(), pane_.may_delete, "delete files",
                  [this, arguments, phone = phone_in_use(desktop())](Held_Flag&) {
                      const bool deleted = adb_delete_file_by_apk_OnThePhone(
                          arguments.record_id, arguments.record_file_name, phone);
                      if (!deleted) return;
                      post([this] {
                          OnTable_Selected();
                          say("Starting to delete record from your phone...");
                          reload_after_a_change();
                      });
                  });
}

bool File_TableSource::adb_delete_file_by_apk_OnThePhone(const std::string& id,
                                                         const std::string& andFilePath,
                                                         const std::string& phone) {
    sock_apk agent;
    const int code = (agent.*pane_.delete_code)();
    const std::string named = format(pane_.delete_result, id.c_str(), andFilePath.c_str());
    return delete_chosen(phone, [&](const Listed_File& file) {
        post_change();
        const bool deleted = pane_.has_ids ? agent.del_one_for_music_image_video(
                                                 code, file.id.c_str(), file.path.c_str())
                                           : agent.del_one_for_book(code, file.path.c_str());
        // The line never names the file.
        post_status(format(deleted ? "Deleted '%s' successfully!" : "Failed to delete '%s'!",
                           named.c_str()));
        if (deleted)
            trace("del '%s' successfully!", file.path.c_str());
        else
            trace("failed!");
        return Outcome{deleted, agent.refusal()};
    });
}

// --- export -----------------------------------------------------------------------------------

void File_TableSource::choose_folder_and_export() {
    const File_Panel panel{.message = "Select a folder",
                           .prompt = "OK",
                           .files = false,
                           .folders = true,
                           .sheet = true};
    open_panel(panel, [this](const std::string& folder) {
        if (!folder.empty()) export_to(folder);
    });
}

void File_TableSource::export_to(const std::string& folder) {
    start_guarded(
        desktop(), pane_.may_export, "export files",
        [this, folder, tool = phone_tool(desktop())](Held_Flag&) { export_files(folder, tool); });
}

void File_TableSource::export_files(const std::string& folder, const Phone_Tool& tool) {
    int processed = 0;
    for_each_told("Copying", chosen_files(), [&](const Listed_File& file) {
        const Outcome pulled = pull_into_folder(desktop(), tool, file.path, folder);
        const std::string line = format(pulled.good ? "Successfully saved '(%s)%s' to '%s'."
                                                    : "Faild to save '(%s)%s' to '%s'.",
                                        file.number.c_str(), file.path.c_str(), folder.c_str());
        post_status(line);
        log_line("%s", line.c_str());
        ++processed;
        return Outcome{pulled.good && pulled.reason.empty(), pulled.reason};
    });
    if (processed > 0)
        // "musics" whatever was saved, and all that was tried.
        window_.show_message(
            format("Saved %d musics file to '%s' successfully!", processed, folder.c_str()));
}

}  // namespace velk
