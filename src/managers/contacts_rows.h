// The rows of the two tables that show the phone's contacts.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "agent/sock_apk.h"
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

/// The row of a contact, its texts as the phone has them; `number` is its place in load order,
/// from 1.
Contacts_TableSource_Column row_of(const sock_apk::CONTACT& contact, std::size_t number);

}  // namespace velk
