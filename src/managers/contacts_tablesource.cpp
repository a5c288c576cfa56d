#include "managers/contacts_tablesource.h"

#include <vector>

#include "base/text.h"
#include "managers/filling.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* command_list_contacts = "14";

/// "|" separates fields in requests, so no number on this side holds one.
Contacts_TableSource_Column row_without_separators(const sock_apk::CONTACT& contact,
                                                   std::size_t number) {
    Contacts_TableSource_Column row = row_of(contact, number);
    row.col_phone_number = replace_all(std::move(row.col_phone_number), '|', '!');
    return row;
}

}  // namespace

Contacts_TableSource::Contacts_TableSource(Main_Window& window)
    : Table_Source(window, "m_LB_Quiet_Contacts") {
    g_contacts_tablesource = this;
    m_table.on_selection([this] { OnTableView_SelectedRow(); });
    section.title = "Contacts";
    section.empty_text = "The contacts on your phone are listed here.";
    section.search_text = "Search names and numbers";
    section.table = &m_table;
    section.status = &m_LB_Tips_Contacts;
    section.second_status = &m_LB_Message;
    set_commands({
        {.name = "OnBT_AddContacts",
         .caption = "Add",
         .icon = "add",
         .run = [this] { OnBT_AddContacts(); }},
        {.name = "OnBT_ModifyContacts",
         .caption = "Modify",
         .icon = "modify",
         .run = [this] { OnBT_ModifyContacts(); }},
        {.name = "OnBT_DeleteContacts",
         .caption = "Delete",
         .icon = "delete",
         .run = [this] { OnBT_DeleteContacts(); },
         .on_delete_key = true},
        {.name = "OnBT_Contacts_DelAll",
         .caption = "Delete All",
         .icon = "delete_all",
         .run = [this] { OnBT_Contacts_DelAll(); },
         .guard = &g_can_click_contacts_delete_all},
        {.name = "OnBT_Contacts_Refresh",
         .caption = "Refresh",
         .icon = "refresh",
         .run = [this] { OnBT_Contacts_Refresh(); },
         .guard = &g_can_click_contacts_load},
        {.name = "OnBT_ContactsExport",
         .caption = "Export",
         .icon = "export",
         .run = [this] { OnBT_ContactsExport(); }},
        {.name = "OnBT_ContactsImport",
         .caption = "Import",
         .icon = "import",
         .run = [this] { OnBT_ContactsImport(); },
         .guard = &g_can_click_contacts_import},
    });
}

Contacts_TableSource::~Contacts_TableSource() {
    g_contacts_tablesource = nullptr;
}

void Contacts_TableSource::OnTableView_SelectedRow() {
    selected_row = m_table.selected_row();
}

void Contacts_TableSource::OnBT_Contacts_Refresh() {
    if (!g_can_click_contacts_load) return;
    m_LB_Tips_Contacts.set_text("Loading ......");
    ContactsLoad();
}

void Contacts_TableSource::ContactsLoad() {
    if (g_can_click_contacts_load) list_is_old_ = false;
    start_guarded(desktop(), g_can_click_contacts_load, "contacts",
                  [this](Held_Flag&) { TableView_FullData(); });
}

void Contacts_TableSource::reload_after_a_change() {
    phone_was_changed(g_can_click_contacts_load, g_table_contacts_need_refresh);
    OnBT_Contacts_Refresh();
}

void Contacts_TableSource::refresh_button_contacts_title() {
    window_.set_section_title(Toolbar_Section::contacts,
                              format("Contacts(%d)", table_rows.count()));
    window_.set_BT_Caption_White();
}

void Contacts_TableSource::TableView_FullData() {
    const Busy_Note note = busy("Waiting for the phone: contacts");
    Filling filling(desktop(), table_rows, m_table);
    post([this] {
        quiet.tell_of_list("");
        m_LB_Tips_Contacts.set_text("Loading ......");
        m_LB_Tips_Contacts.set_text(format("Loading '%d' contacts........", g_int_count_contacts));
    });
    std::vector<sock_apk::CONTACT> contacts;
    bool too_long = false;
    sock_apk().send_command_get_contatcts_array(command_list_contacts, contacts, &too_long);
    std::vector<Contacts_TableSource_Column> loaded;
    for (const sock_apk::CONTACT& contact : contacts)
        loaded.push_back(row_without_separators(contact, loaded.size() + 1));
    filling.append(std::move(loaded), [this](const Contacts_TableSource_Column& row) {
        m_LB_Tips_Contacts.set_text(
            format("Loading No.%s '%s'......", row.col_no.c_str(), row.col_name.c_str()));
    });
    filling.post([this, too_long, count = contacts.size()] {
        m_LB_Tips_Contacts.set_text(
            format("There are %zu contact(s) on your Mobile Phone.", count));
        quiet.tell_of_list(too_long ? contacts_are_too_many
                                    : remark_on_list(list_is_old_, g_int_count_contacts, count));
        refresh_button_contacts_title();
    });
}

}  // namespace velk
