#include "managers/contacts_tablesource.h"

#include <vector>

#include "agent/sock_apk.h"
#include "base/text.h"
#include "ui/busy_line.h"
#include "ui/desktop.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

namespace {

constexpr const char* command_list_contacts = "14";

/// A record's ID and name run on into the bytes behind them; a text ends at its first NUL.
Contacts_TableSource_Column row_of(const sock_apk::CONTACT& contact, std::size_t number) {
    Contacts_TableSource_Column row;
    row.col_no = std::to_string(number);
    row.col_id = until_nul(contact.ID);
    row.col_name = until_nul(contact.name);
    // "|" separates fields in requests, so no number on this side holds one.
    row.col_phone_number = replace_all(until_nul(contact.tel), '|', '!');
    return row;
}

}  // namespace

const std::array<Row_Column<Contacts_TableSource_Column>, 4>&
Contacts_TableSource_Column::row_columns() {
    using Row = Contacts_TableSource_Column;
    static const std::array<Row_Column<Row>, 4> columns = {{
        {{.identifier = "col_no", .title = "No.", .comparison = Comparison::number, .width = 6},
         &Row::col_no},
        {{.identifier = "col_id", .title = "ID", .comparison = Comparison::number, .width = 8},
         &Row::col_id},
        {{.identifier = "col_name", .title = "Name", .width = 30, .wide = true}, &Row::col_name},
        {{.identifier = "col_phone_number", .title = "Phone Number", .width = 24},
         &Row::col_phone_number},
    }};
    return columns;
}

Contacts_TableSource::Contacts_TableSource(Main_Window& window) : window_(window) {
    g_contacts_tablesource = this;
    m_table.on_selection([this] { OnTableView_SelectedRow(); });
    section.title = "Contacts";
    section.empty_text = "The contacts on your phone are listed here.";
    section.table = &m_table;
    section.status = &m_LB_Tips_Contacts;
    section.commands = {{.name = "OnBT_Contacts_Refresh",
                         .caption = "Refresh",
                         .icon = "refresh",
                         .run = [this] { OnBT_Contacts_Refresh(); },
                         .guard = &g_can_click_contacts_load}};
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
    if (!g_can_click_contacts_load) return;
    g_can_click_contacts_load = 0;
    Worker::start("contacts", [this] {
        TableView_FullData();
        window_.desktop().post([] { g_can_click_contacts_load = 1; });
    });
}

void Contacts_TableSource::refresh_button_contacts_title() {
    window_.set_contacts_title(format("Contacts(%d)", table_rows.count()));
    window_.set_BT_Caption_White();
}

void Contacts_TableSource::TableView_FullData() {
    Desktop& desktop = window_.desktop();
    const Busy_Note note(desktop, window_.busy_line(), "Waiting for the phone: contacts");
    desktop.post([this] {
        table_rows.clear();
        m_table.reload();
        m_LB_Tips_Contacts.set_text("Loading ......");
        m_LB_Tips_Contacts.set_text(format("Loading '%d' contacts........", g_int_count_contacts));
    });
    std::vector<sock_apk::CONTACT> contacts;
    sock_apk().send_command_get_contatcts_array(command_list_contacts, contacts);
    for (std::size_t i = 0; i < contacts.size(); ++i)
        desktop.post([this, row = row_of(contacts[i], i + 1)] { append(row); });
    desktop.post([this, count = static_cast<int>(contacts.size())] {
        m_LB_Tips_Contacts.set_text(format("There are %d contact(s) on your Mobile Phone.", count));
        refresh_button_contacts_title();
    });
}

void Contacts_TableSource::append(const Contacts_TableSource_Column& row) {
    table_rows.push_back(row);
    m_table.reload_appended();
    m_table.scroll_to_last();
    m_LB_Tips_Contacts.set_text(
        format("Loading No.%s '%s'......", row.col_no.c_str(), row.col_name.c_str()));
}

}  // namespace velk
