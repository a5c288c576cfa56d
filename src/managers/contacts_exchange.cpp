// The contacts as files: exported as a page, imported from one, and as a property list.
#include <cstdlib>
#include <filesystem>
#include <optional>

#include "base/file.h"
#include "base/trace.h"
#include "export/property_list.h"
#include "managers/contacts_page.h"
#include "managers/contacts_tablesource.h"
#include "managers/save_page.h"
#include "ui/for_thread_var.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* export_file_extent_html = "HTML";
constexpr const char* export_file_extent = "csv";  // named in a panel; no such file is ever read

constexpr const char* no_file = "That file cannot be read.";
constexpr const char* no_utf8 = "That file is no UTF-8 text.";
constexpr const char* no_export = "That file is no exported list of contacts.";
constexpr const char* no_rows = "That file holds no contacts, or not all of its list.";

/// The file's text; nothing when it is not there or no text.
std::optional<std::string> readFromFile(const std::string& path, std::string& reason) {
    std::error_code no_matter;
    log_line("%s",
             plain(std::filesystem::exists(path, no_matter) ? "file exist!" : "file not exist!"));
    std::optional<std::string> text = read_whole_file(path);
    if (!text) reason = no_file;
    if (!text || is_utf8(*text)) return text;
    reason = no_utf8;
    return std::nullopt;
}

/// A leading "~" is the person's home.
std::string with_home(const std::string& path) {
    const char* const home = std::getenv("HOME");
    const bool has_tilde = path == "~" || path.starts_with("~/");
    return has_tilde && home != nullptr ? home + path.substr(1) : path;
}

}  // namespace

// --- export ---

void Contacts_TableSource::OnBT_ContactsExport() {
    run_command(desktop(), "export contacts", [this] {
        const std::string path = get_save_fullpath(export_file_extent_html);
        const bool written = save_to_html(path);
        const std::string message =
            written ? format("Successed to save '%s'!", path.c_str()) : std::string();
        log_line("%s", message.c_str());
        post_status(message);
    });
}

std::string Contacts_TableSource::get_save_fullpath(const std::string& extension) {
    return choose_save_path(desktop(), format("Save to a *.%s file", extension.c_str()), extension);
}

bool Contacts_TableSource::save_to_html(const std::string& path) {
    const Busy_Note note = busy("Exporting contacts");
    const bool coming = list_is_coming();
    const std::string data = contacts_data(rows_on_the_screen(table_rows, m_table));
    return tell_saved(path, save_page(desktop(), path, "Contacts", data), coming);
}

// --- import ---

void Contacts_TableSource::OnBT_ContactsImport() {
    const File_Panel panel{.message = format("Select a *.%s file", export_file_extent),
                           .prompt = "OK",
                           .folders = true,
                           .sheet = true};
    open_panel(panel, [this](const std::string& path) {
        if (!path.empty()) ContactsImport(path);
    });
}

void Contacts_TableSource::ContactsImport(const std::string& path) {
    For_Thread_Var arguments;
    arguments.m_contacts_import_file_name = path;
    start_guarded(desktop(), g_can_click_contacts_import, "import contacts",
                  [this, arguments, phone = phone_in_use(desktop())](Held_Flag& running) {
                      thread_do_read_xml(arguments.m_contacts_import_file_name, phone);
                      running.give_back();
                      post([this] { reload_after_a_change(); });
                  });
}

void Contacts_TableSource::thread_do_read_xml(const std::string& path, const std::string& phone) {
    log_line("V1 == %s", path.c_str());
    read_html(path, phone);
    post([this] {
        say(format("There are %d contact(s) on your Mobile Phone.", table_rows.count()));
        refresh_button_contacts_title();
    });
}

bool Contacts_TableSource::read_html(const std::string& path, const std::string& phone) {
    const Busy_Note note = busy("Reading the file");
    std::string reason;
    const std::optional<std::string> text = readFromFile(path, reason);
    if (text)
        reason =
            is_ContactsHtml(*text) ? import_rows(getContactsFromHtml(*text), phone) : no_export;
    post([this, reason] { quiet.tell_reason(reason); });
    return reason.empty();
}

std::string Contacts_TableSource::import_rows(std::string_view rows, const std::string& phone) {
    log_line("%s", std::string(rows));
    Busy_Note note = busy("Importing contacts");
    Page_Records records(rows);
    Page_Contact contact;
    std::size_t number = 0;
    std::size_t failed = 0;
    std::string refusal;  // of the last one that failed
    while (!desktop().closing() && records.next(contact)) {
        if (phone_in_use(desktop()) != phone) return another_phone;
        note.say(format("Importing contact %zu", number + 1));
        log_line("TelName=%s,TelNumber=%s", contact.name.c_str(), contact.number.c_str());
        if (!records.was_last()) {
            // A lone blank stands for nothing.
            if (contact.name == " ") contact.name.clear();
            if (contact.number == " ") contact.number.clear();
            if (contact.name.empty() && contact.number.empty()) continue;
        }
        ++number;
        std::string why;
        if (!Contacts_Add_One(contact.name, contact.number, &why)) ++failed;
        if (!why.empty()) refusal = why;
        if (records.was_last())
            post([this, name = contact.name] {
                m_LB_Message.set_text(format("Importing %s \n", name.c_str()));
            });
    }
    const bool is_whole = number > 0 && !records.break_off();
    const std::string reason = is_whole ? "" : no_rows;
    if (failed == 0) return reason;
    if (!refusal.empty()) refusal = " " + refusal;
    return format("%zu of %zu contacts could not be added.%s%s%s", failed, number, refusal.c_str(),
                  is_whole ? "" : " ", reason.c_str());
}

// --- property list; no button asks for it ---

bool Contacts_TableSource::save_xml(const std::string& path) {
    std::vector<Listed_Contact> contacts;
    for (const auto& row : rows_on_the_screen(table_rows, m_table))
        contacts.push_back({row.col_id, row.col_name, row.col_phone_number});
    return save_text(desktop(), with_home(path), property_list_of(contacts)).empty();
}

bool Contacts_TableSource::read_xml(const std::string& path) {
    const std::optional<std::string> file = read_whole_file(with_home(path));
    if (!file) return false;
    const auto contacts = contacts_of_property_list(*file);
    if (!contacts) return false;
    for (const Listed_Contact& contact : *contacts) {
        if (desktop().closing()) break;
        Contacts_Add_One(contact.name, contact.number);
        const std::string line = format("Importing %s \n", contact.name.c_str());
        trace("%s", line.c_str());
        post_status(line);
    }
    return true;
}

}  // namespace velk
