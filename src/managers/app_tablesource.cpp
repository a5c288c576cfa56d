#include "managers/app_tablesource.h"

#include <utility>

#include "base/trace.h"
#include "bridge/adb_command.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* package_names = "*.apk";

const Phone_List<sock_apk::APP_RECORD> phone_list = {
    .name = "applications",
    .code = "116",
    .fetch = &sock_apk::send_command_get_app_list,
    .loaded = "There are %zu application(s) on your Mobile Phone.",
    .counted = g_int_count_apps};

/// Why the tool failed; empty when it did not, or did not say why.
std::string failure_of(const std::string& printed) {
    const std::string line = last_line(printed);
    return line == all_went_well ? "" : line;
}

}  // namespace

App_TableSource::App_TableSource(Main_Window& window)
    : Table_Source(window, {.name = "App",
                            .status = m_LB_message,
                            .may_load = g_can_click_load,
                            .button = Toolbar_Section::apps,
                            .button_title = "Apps",
                            .needs_refresh = &g_table_app_need_refresh}) {
    g_app_tablesource = this;
    m_table.on_selection([this] { OnTable_Selected(); });
    section.title = "Applications";
    section.empty_text = "The applications on your phone are listed here.";
    section.search_text = "Search names and packages";
    section.table = &m_table;
    take_drops({.take = [this](std::vector<std::string> paths) { Install_Files(std::move(paths)); },
                .hint = "Drop applications (*.apk) here to install them on your phone.",
                .patterns = {package_names},
                .guard = &g_can_click_app_install});
    set_commands({
        {.name = "OnBT_App_Install",
         .caption = "Install",
         .icon = "install",
         .run = [this] { OnBT_App_Install(); },
         .guard = &g_can_click_app_install,
         .keys = keys_of_add},
        {.name = "OnBT_App_Uninstall",
         .caption = "Uninstall",
         .icon = "uninstall",
         .run = [this] { OnBT_App_Uninstall(); },
         .guard = &g_can_click_app_uninstall,
         .on_delete_key = true},
        refresh_command("OnBT_Refresh", [this] { OnBT_Refresh(); }),
    });
    Load();
}

App_TableSource::~App_TableSource() {
    g_app_tablesource = nullptr;
}

void App_TableSource::OnTable_Selected() {
    selected_row = m_table.selected_row();
}

void App_TableSource::refresh_button_app_title() {
    show_count(table_rows.count());
}

// --- load -------------------------------------------------------------------------------------

void App_TableSource::OnBT_Refresh() {
    if (g_can_click_load) Load();
}

void App_TableSource::Load() {
    if (g_can_click_load)
        start_load([this] { TableView_FullData(); });
    else
        window_.show_message("Please wait for a few minutes to load your applications.");
}

void App_TableSource::TableView_FullData() {
    fill_from_phone(table_rows, m_table, phone_list, [this](const App_TableSource_Column& row) {
        // It counts from 0 here, unlike the rows.
        say(format("Loading No.%d '%s' application......", to_int32(row.col_no) - 1,
                   row.col_app_name.c_str()));
    });
}

// --- install ----------------------------------------------------------------------------------

void App_TableSource::get_fullpath(std::function<void(const std::string&)> chosen) {
    open_panel({.message = "select a file(*.apk).",
                .prompt = "OK",
                .folders = true,
                .patterns = {package_names}},
               std::move(chosen));
}

void App_TableSource::OnBT_App_Install() {
    // A person who cancels installs the empty path; it has always been so.
    get_fullpath([this](const std::string& path) { Install_APK_To_Phone(path); });
}

void App_TableSource::Install_Files(std::vector<std::string> paths) {
    start_guarded(
        desktop(), g_can_click_app_install, "install",
        [this, paths = std::move(paths), tool = phone_tool(desktop())](Held_Flag& installing) {
            thread_do_install_function(paths, tool, installing);
        });
}

void App_TableSource::thread_do_install_function(const std::vector<std::string>& paths,
                                                 const Phone_Tool& tool, Held_Flag& installing) {
    for_each_on(tool.serial, "Installing on the phone", paths,
                [&](const std::string& path) { return adb_install_apk(path, tool); });
    show_change(installing);
}

Outcome App_TableSource::adb_install_apk(const std::string& path, const Phone_Tool& tool) {
    log_line("V1 == %s", path.c_str());
    post_status(format("Installing file '%s'.", path.c_str()));
    tool.log_with(path);
    post_change();
    const std::string printed = ADB_Command().Install_Apk_To_Android(tool.path, tool.serial, path);
    log_line("%s", printed.c_str());
    // Whatever the tool printed; the quiet line has its reason.
    post_status("Installed Successfully!");
    return {last_line(printed) == all_went_well, failure_of(printed)};
}

// --- uninstall --------------------------------------------------------------------------------

void App_TableSource::OnBT_App_Uninstall() {
    if (selected_row < 0 || selected_row >= table_rows.count()) return;
    const App_TableSource_Column& row = table_rows[static_cast<std::size_t>(selected_row)];
    const std::string question = format("Are you sure you want to delete the selected \"%s\" App?",
                                        row.col_app_name.c_str());
    ask_person(yes_or_no(question),
               [this, name = row.col_app_name, package = row.col_app_name_package] {
                   say(format("Uninstalling application '%s'.", name.c_str()));
                   Delete_APP(package);
               });
}

void App_TableSource::Delete_APP(const std::string& package) {
    For_Thread_Var arguments;
    arguments.m_contacts_import_file_name = package;
    start_guarded(desktop(), g_can_click_app_uninstall, "uninstall",
                  [this, arguments, tool = phone_tool(desktop())](Held_Flag& uninstalling) {
                      thread_do_uninstall_function(arguments, tool, uninstalling);
                  });
}

void App_TableSource::thread_do_uninstall_function(const For_Thread_Var& arguments,
                                                   const Phone_Tool& tool,
                                                   Held_Flag& uninstalling) {
    const Busy_Note note = busy("Uninstalling from the phone");
    adb_uninstall_apk(arguments.m_contacts_import_file_name, tool);
    show_change(uninstalling);
}

void App_TableSource::adb_uninstall_apk(const std::string& package, const Phone_Tool& tool) {
    post_change();
    std::string printed;
    const std::string verdict =
        ADB_Command().Uninstall_Apk_From_Android(tool.path, tool.serial, package, &printed);
    log_line("%s", verdict.c_str());
    const std::string failure = failure_of(printed);
    if (!failure.empty()) post([this, failure] { quiet.tell_reason(failure); });
    post_status(verdict);
}

// --- both -------------------------------------------------------------------------------------

void App_TableSource::show_change(Held_Flag& running) {
    post([this] { refresh_button_app_title(); });
    running.give_back();
    post([this] {
        list_may_be_old();
        Load();
    });
}

}  // namespace velk
