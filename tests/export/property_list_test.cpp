#include "export/property_list.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

using Contacts = std::vector<Listed_Contact>;

std::string list_of(const std::string& dictionary) {
    return "<plist version=\"1.0\"><dict>" + dictionary + "</dict></plist>";
}

std::string deep(const std::string& level) {
    std::string file = "<plist version=\"1.0\">";
    for (int i = 0; i < 200000; ++i) file += level;
    return file;
}

TEST(Property_List, ContactsComeBackAsTheyWere) {
    const Contacts contacts = {{"7", "Zoë <b>&amp; \"O'Neil\"", "+49 (0)"},
                               {"", "", ""},
                               {"300", " two\nlines ", " "},
                               {"😀", "李", "٠١"}};
    EXPECT_EQ(contacts_of_property_list(property_list_of(contacts)), contacts);
    EXPECT_EQ(contacts_of_property_list(property_list_of({})), Contacts{});
    Contacts many(2000, {"1", "n", "2"});
    for (std::size_t i = 0; i < many.size(); ++i) many[i].id = std::to_string(i);
    EXPECT_EQ(contacts_of_property_list(property_list_of(many)), many);
}

TEST(Property_List, TextsThatXmlCannotCarryDoNotBreakTheFile) {
    const std::string bad = "\xEF\xBF\xBD";
    const std::string nul("a\0b", 3);
    EXPECT_EQ(contacts_of_property_list(
                  property_list_of({{"\xFF", "a\x01z\xEF\xBF\xBF", nul}, {"2", "Ann", "5"}})),
              (Contacts{{bad, "a" + bad + "z" + bad, "a" + bad + "b"}, {"2", "Ann", "5"}}));
}

TEST(Property_List, WhatIsNotThereIsLeftOut) {
    const std::string ann =
        "<array><string>1</string><string>Ann</string><string>5</string></array>";
    const auto count = [](const std::string& value) { return "<key>record_count</key>" + value; };
    const struct {
        const char* what;
        std::string file;
        std::optional<std::size_t> found;
    } cases[] = {
        {"no list", "no list", {}},
        {"nothing", "", {}},
        {"not a dictionary", "<plist version=\"1.0\">" + ann + "</plist>", {}},
        {"no count", list_of("<key>0</key>" + ann), 0},
        {"odd count", list_of(count("<true/>") + "<key>0</key>" + ann), 0},
        {"count is a number", list_of(count("<integer>1</integer>") + "<key>0</key>" + ann), 1},
        {"endless count", list_of(count("<string>2147483647</string>") + "<key>7</key>" + ann), 1},
        {"negative count", list_of(count("<string>-1</string>") + "<key>0</key>" + ann), 0},
        {"below the count alone",
         list_of(count("<string>1</string>") + "<key>0</key>" + ann + "<key>1</key>" + ann), 1},
        {"keys that are no index",
         list_of(count("<string>9</string>") + "<key>01</key>" + ann + "<key>-1</key>" + ann), 0},
        {"short array", list_of(count("<string>1</string>") + "<key>0</key><array/>"), 0},
        {"no texts",
         list_of(count("<string>1</string>") + "<key>0</key><array><true/><true/><true/></array>"),
         0},
        {"no text in place of the ID",
         list_of(count("<string>1</string>") + "<key>0</key><array><integer>7</integer>" +
                 "<string>Ann</string><string>5</string></array>"),
         1},
        {"no array", list_of(count("<string>1</string>") + "<key>0</key><string>a</string>"), 0},
        {"deep", deep("<array><!--</array>-->"), {}},
        {"deep behind instructions", deep("<array><?x ><!-- ?>"), {}},
        {"deep behind a quoted end", deep("<array><?x \"?></array>\"?>"), {}},
        {"deep behind a quoted end of a tag", deep("<array><true a=\"></array>\"/>"), {}},
    };
    for (const auto& each : cases) {
        const auto contacts = contacts_of_property_list(each.file);
        ASSERT_EQ(contacts.has_value(), each.found.has_value()) << each.what;
        EXPECT_EQ(contacts.value_or(Contacts()).size(), each.found.value_or(0)) << each.what;
    }
    const std::string whole = property_list_of({{"1", "Ann", "5"}, {"2", "Ben", "6"}});
    for (std::size_t cut = 0; cut < whole.size(); ++cut) {
        const auto contacts = contacts_of_property_list(whole.substr(0, cut));
        EXPECT_LE(contacts ? contacts->size() : 0, 2U) << "cut at " << cut;
    }
}

}  // namespace
}  // namespace velk
