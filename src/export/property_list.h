// The contacts as a property list: a dictionary with the number of records under "record_count" and
// each record, an array of id, name and number, under its index.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

struct Listed_Contact {
    std::string id, name, number;
    bool operator==(const Listed_Contact&) const = default;
};

/// The list as an XML file. What XML cannot carry (bytes that are no UTF-8, control characters)
/// becomes U+FFFD.
std::string property_list_of(const std::vector<Listed_Contact>& contacts);

/// The contacts of such a file in their order; nothing when it is no dictionary. A
/// record below the count that is missing, or is no array of three texts, is left out.
std::optional<std::vector<Listed_Contact>> contacts_of_property_list(std::string_view file);

}  // namespace velk
