// The contacts as the data of an exported page, and back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "managers/contacts_rows.h"

namespace velk {

/// What a page says of a contact.
struct Page_Contact {
    std::string id;  // the running number on the page
    std::string name;
    std::string number;
    bool operator==(const Page_Contact&) const = default;
};

/// The data text of the page: the header row, then one for each contact.
std::string contacts_data(const std::vector<Contacts_TableSource_Column>& rows);

/// True when the text is an exported page of contacts.
bool is_ContactsHtml(std::string_view text);

/// The data rows of such a page, behind the header row; empty when its array is not whole.
std::string_view getContactsFromHtml(std::string_view text);

/// What one record says, its closing bracket and what follows included. A comma within a name or
/// number splits it, because the page does not protect commas.
Page_Contact get_one_contact_from_html(std::string_view record);

/// Takes the records off `rows`, one at each call, whatever stands there.
class Page_Records {
  public:
    explicit Page_Records(std::string_view rows) : rows_(rows) {}

    /// Another record, put into `contact`; false when there is none.
    bool next(Page_Contact& contact);
    /// True when the record just taken was the one that nothing follows.
    bool was_last() const { return was_last_; }
    /// True when the rows break off within a record, as they do behind a name with "];".
    bool break_off() const;

  private:
    std::string_view rows_;
    bool was_last_ = false;
};

}  // namespace velk
