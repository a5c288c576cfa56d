// The rows of the two tables that show the phone's contacts.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ui/table.h"

namespace velk {

/// One row of the table.
struct Contacts_TableSource_Column {
    std::string col_no;  // place in load order, from "1"; kept when the table is sorted
    std::string col_id;  // the phone's own id of the contact
    std::string col_name;
    std::string col_phone_number;

    static const std::array<Row_Column<Contacts_TableSource_Column>, 4>& row_columns();
};

/// What to say of a list that does not fit into what the agent can send.
inline constexpr const char* contacts_are_too_many =
    "The phone's list of contacts is longer than its agent can send.";

inline constexpr const char* contacts_empty_text = "The contacts on your phone are listed here.";
inline constexpr const char* contacts_wait_text = "Waiting for the phone: contacts";

/// Asks the phone for all contacts and gives a row for each, in the agent's order and with the
/// texts that the phone has. `missing` is set to the reason why there are fewer rows than contacts,
/// as far as the phone tells; empty otherwise. Worker.
std::vector<Contacts_TableSource_Column> fetch_contact_rows(std::string& missing);

/// "|" separates fields in requests of the first wire and ends them: while that one is in use, the
/// number of a row, a number that is typed, and what a page holds have another mark in its place.
/// On the second wire every text stays as it is. Any thread.
std::string without_separators(const std::string& text);

}  // namespace velk
