#include "managers/contacts_page.h"

#include <iterator>

#include "base/text.h"

namespace velk {

namespace {

constexpr std::string_view header_cells = "'ID','Name','Phone Number'";
constexpr std::string_view end_of_record = "],";
constexpr std::string_view end_of_array = "];";

/// What a cell may hold: "'" would end a text on the page.
std::string cell(const std::string& text) {
    return replace_all(without_separators(text), '\'', ' ');
}

bool continues_a_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// So many characters less at the text's start, or its end.
std::string_view without_first(std::string_view text, int count) {
    for (; count > 0 && !text.empty(); --count) {
        text.remove_prefix(1);
        while (!text.empty() && continues_a_character(text.front())) text.remove_prefix(1);
    }
    return text;
}

std::string_view without_last(std::string_view text, int count) {
    for (; count > 0 && !text.empty(); --count) {
        while (text.size() > 1 && continues_a_character(text.back())) text.remove_suffix(1);
        text.remove_suffix(1);
    }
    return text;
}

/// The third field still has its closing quote, and that of a record in the middle its bracket.
std::string number_of(std::string_view rest, bool is_last) {
    const int too_much = is_last ? 1 : rest.find("''") != std::string_view::npos ? 3 : 2;
    const std::string_view number = without_last(rest, too_much);
    return number.empty() ? " " : without_separators(std::string(number));
}

}  // namespace

std::string contacts_data(const std::vector<Contacts_TableSource_Column>& rows) {
    std::string data = "\n[" + std::string(header_cells) + "],";
    std::size_t number = 0;
    for (const Contacts_TableSource_Column& row : rows) {
        if (number > 0) data += ',';
        data += "\n['" + std::to_string(++number) + "','" + cell(row.col_name) + "','" +
                cell(row.col_phone_number) + "']";
    }
    return data;
}

bool is_ContactsHtml(std::string_view text) {
    return contains_ignoring_case(text, header_cells);
}

std::string_view getContactsFromHtml(std::string_view text) {
    const std::size_t end_of_header = text.find(end_of_record);
    const std::size_t end = text.find(end_of_array);
    if (end_of_header == std::string_view::npos || end == std::string_view::npos) return {};
    const std::size_t start = end_of_header + end_of_record.size();
    if (start >= end) return {};
    return without_first(text.substr(start, end - start), 1);  // a line feed
}

Page_Contact get_one_contact_from_html(std::string_view record) {
    std::string_view rest = without_first(record, 2);
    const bool is_followed = rest.find(end_of_record) != std::string_view::npos;
    const bool is_last = !is_followed && rest.find(']') != std::string_view::npos;
    if (is_followed || is_last) rest = without_last(rest, 2);
    Page_Contact contact;
    std::string* fields[] = {&contact.id, &contact.name};
    std::size_t field = 0;
    for (std::size_t comma; (comma = rest.find(',')) != std::string_view::npos; ++field) {
        if (field < std::size(fields))
            *fields[field] = std::string(without_last(rest.substr(0, comma), 1));
        rest = without_first(rest.substr(comma + 1), 1);
    }
    contact.number = number_of(rest, is_last);
    if (contact.name.empty()) contact.name = contact.number;
    return contact;
}

bool Page_Records::next(Page_Contact& contact) {
    const std::size_t end = rows_.find(end_of_record);
    was_last_ = end == std::string_view::npos;
    // What stands behind the last record and is no record is no contact either.
    if (was_last_ && rows_.find(']') == std::string_view::npos) return false;
    const std::string_view rest =
        was_last_ ? std::string_view() : without_first(rows_.substr(end + end_of_record.size()), 1);
    contact = get_one_contact_from_html(rows_.substr(0, rows_.size() - rest.size()));
    rows_ = rest;
    return true;
}

bool Page_Records::break_off() const {
    return rows_.find(']') == std::string_view::npos &&
           rows_.find_first_not_of(" \t\r\n,") != std::string_view::npos;
}

}  // namespace velk
