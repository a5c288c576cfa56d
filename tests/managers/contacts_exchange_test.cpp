#include <filesystem>

#include "base/file.h"
#include "managers/contacts_fixture.h"
#include "support/temporary_folder.h"
#include "ui/worker.h"

namespace velk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Contacts_Exchange : public Contacts_Test {
  protected:
    void export_to(const std::string& chosen) {
        window.test_desktop.choose_file(chosen);
        contacts.OnBT_ContactsExport();
        finish();
    }
    /// Imports a file of that content.
    void import(const std::string& content) {
        const std::string file = folder.path("import.HTML");
        ASSERT_EQ(write_whole_file(file, content), "");
        window.test_desktop.choose_file(file);
        contacts.OnBT_ContactsImport();
        finish();
    }
    std::vector<std::string> added() {
        std::vector<std::string> contents;
        for (const std::string& request : edits()) contents.push_back(request.substr(10));
        return contents;
    }

    Temporary_Folder folder;
};

TEST_F(Contacts_Exchange, exports_the_rows_in_their_order_on_the_screen) {
    load({{"7", "Ann\xFF", "555"}, {"8", "Ben", "6'6"}});
    contacts.m_table.sort(2, false);
    export_to(folder.path("my.HTML"));
    const std::string path = folder.path("my.HTML.HTML");
    EXPECT_EQ(status(), "Successed to save '" + path + "'!");
    EXPECT_EQ(window.test_desktop.file_panels()[0].title, "Save to a *.HTML file");
    const std::string page = read_whole_file(path).value_or("");
    EXPECT_THAT(page, HasSubstr("<TITLE>\nContacts\n</TITLE>"));
    EXPECT_THAT(page, HasSubstr("data=[\n['ID','Name','Phone Number'],\n['1','Ben','6 6'],"
                                "\n['2','Ann\xEF\xBF\xBD','555']\n];"));
}

TEST_F(Contacts_Exchange, asks_before_it_replaces_and_says_why_it_could_not_save) {
    load_three();
    ASSERT_EQ(write_whole_file(folder.path("old.HTML"), "kept"), "");
    window.test_desktop.choose_file(folder.path("old"));
    window.test_desktop.answer_alert(1);
    export_to("");  // "No" shows the panel again
    EXPECT_EQ(read_whole_file(folder.path("old.HTML")), "kept");
    EXPECT_EQ(window.test_desktop.file_panels().size(), 2U);
    EXPECT_EQ(status() + quiet(), "");
    std::filesystem::create_directory(folder.path("dir.HTML"));
    export_to(folder.path("dir"));
    EXPECT_EQ(status(), "");
    EXPECT_EQ(quiet(), "Is a directory");
}

TEST_F(Contacts_Exchange, says_so_when_a_list_was_exported_that_was_still_coming) {
    std::promise<void> answer;
    agent.reply_to(14,
                   Agent_Double::held_back(Agent_Double::contacts({{"7", "Ann", "555"}}), answer));
    contacts.OnBT_Contacts_Refresh();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return agent.requests().size() == 1; }));
    window.test_desktop.choose_file(folder.path("early"));
    contacts.OnBT_ContactsExport();
    ASSERT_TRUE(window.test_desktop.pump_until([this] { return !quiet().empty(); }));
    EXPECT_EQ(quiet(), "The list was still coming, so the file may hold a part of it.");
    answer.set_value();
    finish();
}

TEST_F(Contacts_Exchange, imports_an_export_and_reloads) {
    agent.reply_to('5', Agent_Double::added("104"));
    import(
        "['ID','Name','Phone Number'],\n['1','Ann','5'],\n['2','Ben',''],\n['3','',''],\n"
        "['4','Cat','7']\n];");
    EXPECT_THAT(added(), ElementsAre("Ann*5*|", "Ben**|", "Cat*7*|"));
    EXPECT_EQ(contacts.m_LB_Message.text(), "Importing Cat \n");
    EXPECT_THAT(
        status_lines(),
        testing::Contains("m_LB_Tips_Contacts: There are 3 contact(s) on your Mobile Phone."));
    EXPECT_EQ(agent.codes().back(), "14");
    EXPECT_EQ(quiet(), "");
    EXPECT_EQ(g_can_click_contacts_import, 1);
}

TEST_F(Contacts_Exchange, imports_nothing_from_a_file_that_is_no_export_and_says_so) {
    const std::map<std::string, std::string> reasons = {
        {"", "That file is no exported list of contacts."},
        {"['ID','Name','Phone Number'],\n['1','A','2']\n",
         "That file holds no contacts, or not all of its list."},
        {"\xFF['ID','Name','Phone Number'],\n['1','A','2']\n];", "That file is no UTF-8 text."}};
    for (const auto& [content, reason] : reasons) {
        import(content);
        EXPECT_EQ(quiet(), reason);
    }
    window.test_desktop.choose_file(folder.path("missing"));
    contacts.OnBT_ContactsImport();
    finish();
    EXPECT_EQ(quiet(), "That file cannot be read.");
    EXPECT_THAT(edits(), testing::IsEmpty());
}

TEST_F(Contacts_Exchange, says_so_when_not_all_contacts_came_over) {
    agent.reply_once_to('5', Agent_Double::added("104"));
    import("['ID','Name','Phone Number'],\n['1','Ann','5'],\n['2','Ben','6']\n];");
    EXPECT_EQ(quiet(), "1 of 2 contacts could not be added.");
    agent.reply_to('5', Agent_Double::added("105"));
    import(
        "['ID','Name','Phone Number'],\n['1','Ann','5'],\n['2','x];y','6'],\n['3','Cat','7']\n];");
    EXPECT_THAT(added(), ElementsAre("Ann*5*|", "Ben*6*|", "Ann*5*|"));
    EXPECT_EQ(quiet(), "That file holds no contacts, or not all of its list.");
}

TEST_F(Contacts_Exchange, imports_no_more_once_another_phone_is_connected) {
    const std::string file = folder.path("import.HTML");
    ASSERT_EQ(write_whole_file(file,
                               "['ID','Name','Phone Number'],\n['1','Ann','5'],\n"
                               "['2','Ben','6']\n];"),
              "");
    during_an_edit(
        '5', [&] { contacts.ContactsImport(file); }, swap_phones, Agent_Double::added("104"));
    EXPECT_THAT(added(), ElementsAre("Ann*5*|"));
    EXPECT_EQ(quiet(), another_phone);
}

TEST_F(Contacts_Exchange, keeps_the_contacts_in_a_property_list) {
    load_three();
    const std::string file = folder.path("contacts.plist");
    const auto on_a_worker = [&](std::function<bool()> work) {
        bool good = false;
        Worker::start("files", [&] { good = work(); });
        finish();
        return good;
    };
    EXPECT_TRUE(on_a_worker([&] { return contacts.save_xml(file); }));
    EXPECT_TRUE(on_a_worker([&] { return contacts.read_xml(file); }));
    EXPECT_THAT(added(), ElementsAre("Ann*555*|", "Ben*666*|", "Cat*777*|"));
    EXPECT_EQ(contacts.table_rows.count(), 6);
    EXPECT_EQ(status(), "Importing Cat \n");
    EXPECT_FALSE(on_a_worker([&] { return contacts.read_xml(folder.path("missing")); }));
}

}  // namespace
}  // namespace velk
