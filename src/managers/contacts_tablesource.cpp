#include "managers/contacts_tablesource.h"

#include <vector>

#include "managers/filling.h"
#include "ui/program_wide.h"

namespace velk {

Contacts_TableSource::Contacts_TableSource(Main_Window& window)
    : Table_Source(window, {.name = "Contacts",
                            .status = m_LB_Tips_Contacts,
                            .may_load = g_can_click_contacts_load,
                            .button = Toolbar_Section::contacts,
                            .button_title = "Contacts",
                            .needs_refresh = &g_table_contacts_need_refresh}) {
    g_contacts_tablesource = this;
    m_table.on_selection([this] { OnTableView_SelectedRow(); });
    section.title = "Contacts";
    section.empty_text = contacts_empty_text;
    section.search_text = "Search names and numbers";
    section.table = &m_table;
    section.second_status = &m_LB_Message;
    set_commands({
        {.name = "OnBT_AddContacts",
         .caption = "Add",
         .icon = "add",
         .run = [this] { OnBT_AddContacts(); },
         .keys = keys_of_add},
        {.name = "OnBT_ModifyContacts",
         .caption = "Modify",
         .icon = "modify",
         .run = [this] { OnBT_ModifyContacts(); },
         .keys = keys_of_modify},
        {.name = "OnBT_DeleteContacts",
         .caption = "Delete",
         .icon = "delete",
         .run = [this] { OnBT_DeleteContacts(); },
         .on_delete_key = true},
        {.name = "OnBT_Contacts_DelAll",
         .caption = "Delete All",
         .icon = "delete_all",
         .run = [this] { OnBT_Contacts_DelAll(); },
         .guard = &g_can_click_contacts_delete_all,
         .keys = keys_of_delete_all},
        refresh_command("OnBT_Contacts_Refresh", [this] { OnBT_Contacts_Refresh(); }),
        {.name = "OnBT_ContactsExport",
         .caption = "Export",
         .icon = "export",
         .run = [this] { OnBT_ContactsExport(); },
         .keys = keys_of_export},
        {.name = "OnBT_ContactsImport",
         .caption = "Import",
         .icon = "import",
         .run = [this] { OnBT_ContactsImport(); },
         .guard = &g_can_click_contacts_import,
         .keys = keys_of_import},
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
    say("Loading ......");
    ContactsLoad();
}

void Contacts_TableSource::ContactsLoad() {
    start_load([this] { TableView_FullData(); });
}

void Contacts_TableSource::reload_after_a_change() {
    list_may_be_old();
    OnBT_Contacts_Refresh();
}

void Contacts_TableSource::refresh_button_contacts_title() {
    show_count(table_rows.count());
}

void Contacts_TableSource::TableView_FullData() {
    const Busy_Note note = busy(contacts_wait_text);
    Filling filling(desktop(), table_rows, m_table);
    post([this] {
        quiet.tell_of_list("");
        say("Loading ......");
        say(format("Loading '%d' contacts........", g_int_count_contacts));
    });
    std::string missing;
    std::vector<Contacts_TableSource_Column> loaded = fetch_contact_rows(missing);
    for (auto& row : loaded) row.col_phone_number = without_separators(row.col_phone_number);
    const std::size_t count = loaded.size();
    filling.append(std::move(loaded), [this](const Contacts_TableSource_Column& row) {
        say(format("Loading No.%s '%s'......", row.col_no.c_str(), row.col_name.c_str()));
    });
    filling.post_while_mine([this, missing, count] {
        say(format("There are %zu contact(s) on your Mobile Phone.", count));
        quiet.tell_of_list(missing.empty() ? remark_on(g_int_count_contacts, count) : missing);
    });
    post([this] { refresh_button_contacts_title(); });  // also behind an ended filling
}

}  // namespace velk
