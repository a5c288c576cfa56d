#include "managers/contacts_rows.h"

#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/text.h"
#include "managers/common_columns.h"

namespace velk {

namespace {

constexpr const char* command_list_contacts = "14";

/// A record's ID and name run on into the bytes behind them; a text ends at its first NUL.
Contacts_TableSource_Column row_of(const sock_apk::CONTACT& contact, std::size_t number) {
    Contacts_TableSource_Column row;
    row.col_no = std::to_string(number);
    row.col_id = until_nul(contact.ID);
    row.col_name = until_nul(contact.name);
    row.col_phone_number = until_nul(contact.tel);
    return row;
}

}  // namespace

const std::array<Row_Column<Contacts_TableSource_Column>, 4>&
Contacts_TableSource_Column::row_columns() {
    using Row = Contacts_TableSource_Column;
    static const std::array<Row_Column<Row>, 4> columns = {{
        {no_column, &Row::col_no},
        {{.identifier = "col_id", .title = "ID", .comparison = Comparison::number, .width = 8},
         &Row::col_id},
        {{.identifier = "col_name", .title = "Name", .width = 30, .wide = true}, &Row::col_name},
        {{.identifier = "col_phone_number", .title = "Phone Number", .width = 24},
         &Row::col_phone_number},
    }};
    return columns;
}

std::vector<Contacts_TableSource_Column> fetch_contact_rows(std::string& missing) {
    std::vector<sock_apk::CONTACT> contacts;
    sock_apk phone;
    bool too_many = false;
    phone.send_command_get_contatcts_array(command_list_contacts, contacts, &too_many);
    missing = too_many ? contacts_are_too_many : phone.refusal();
    std::vector<Contacts_TableSource_Column> rows;
    rows.reserve(contacts.size());
    for (const sock_apk::CONTACT& contact : contacts)
        rows.push_back(row_of(contact, rows.size() + 1));
    return rows;
}

std::string without_separators(const std::string& text) {
    return second_wire_in_use() ? text : replace_all(text, '|', '!');
}

}  // namespace velk
