#include "managers/contacts_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rows = std::vector<Contacts_TableSource_Column>;

/// The row of a contact; neither its number nor its id stands on a page.
Contacts_TableSource_Column row(const std::string& name, const std::string& number) {
    return {"9", "77", name, number};
}

/// Every contact of the page whose data text this is.
std::vector<Page_Contact> read_back(const std::string& data) {
    const std::string page = "<script>\nvar data=[" + data + "\n];\n";
    Page_Records records(getContactsFromHtml(page));
    std::vector<Page_Contact> contacts;
    for (Page_Contact contact; records.next(contact);) contacts.push_back(contact);
    return contacts;
}

TEST(Contacts_Page, writes_each_row_with_its_number_and_without_quotes_and_bars) {
    EXPECT_EQ(contacts_data({}), "\n['ID','Name','Phone Number'],");
    EXPECT_EQ(contacts_data({row("O'Neil", "12|34"), row("a\\b \"c\"\n<b>|", "'")}),
              "\n['ID','Name','Phone Number'],\n['1','O Neil','12!34'],"
              "\n['2','a\\b \"c\"\n<b>!',' ']");
}

TEST(Contacts_Page, reads_its_own_rows_back) {
    EXPECT_THAT(read_back(contacts_data({})), IsEmpty());
    const std::vector<Page_Contact> kept = {{"1", "Anna \xF0\x9F\x98\x80", "1234"},
                                            {"2", "\u05D3\u05D5\u05D3", "+1 (2)"},
                                            {"3", "<b>\\x</b>", "9!"},
                                            {"4", "Ben", "5678"}};
    Rows rows;
    for (const Page_Contact& contact : kept) rows.push_back(row(contact.name, contact.number));
    EXPECT_EQ(read_back(contacts_data(rows)), kept);
}

TEST(Contacts_Page, reads_empty_fields_as_they_have_always_been_read) {
    // A missing number is a lone blank, a missing name is the number; a comma splits.
    EXPECT_THAT(
        read_back(contacts_data({row("Ben", ""), row("", "7"), row("a,b", "1"), row("C", "")})),
        ElementsAre(Page_Contact{"1", "Ben", " "}, Page_Contact{"2", "7", "7"},
                    Page_Contact{"3", "1", "1"}, Page_Contact{"4", "C", " "}));
}

TEST(Contacts_Page, finds_nothing_in_what_is_no_whole_export) {
    const std::string whole = "x['ID','Name','Phone Number'],\n['1','A','2'],\n['2','B','3']\n];";
    EXPECT_TRUE(is_ContactsHtml("x['id','NAME','phone number']"));
    EXPECT_FALSE(is_ContactsHtml("['ID','Phone Number','Date Time']"));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(getContactsFromHtml(whole.substr(0, length)), "") << length;
    EXPECT_EQ(getContactsFromHtml("];" + whole), "");
    for (const char* rest : {"", "\n", "],", "],\n\n", "['", "nothing"}) {
        Page_Records records(rest);
        for (Page_Contact contact; records.next(contact);) EXPECT_EQ(contact.id, "") << rest;
    }
}

}  // namespace
}  // namespace velk
