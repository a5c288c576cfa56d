// What the first wire cuts, and the second does not, through the real adb.
#include <algorithm>
#include <fstream>
#include <set>

#include "agent/wire_choice.h"
#include "end_to_end/demo_session.h"
#include "managers/sms_tablesource.h"
#include "session/section_views.h"

namespace velk {
namespace {

using testing::HasSubstr;

class Whole_Phone : public On_The_Demo_Phone {
  protected:
    void connect_to(Arguments options) {
        options.insert(options.end(), {"--first-id", "4294967296", "--packet", "4096"});
        connect(options);
        ASSERT_TRUE(second_wire_in_use());
    }
    Contacts_TableSource& contacts() { return *g_contacts_tablesource; }
    std::multiset<std::string> people() {
        load_contacts();
        contacts().OnBT_Contacts_Refresh();
        desktop.finish_work();
        std::multiset<std::string> all;
        for (const auto& row : rows()) all.insert(row.col_name + " | " + row.col_phone_number);
        return all;
    }
};

TEST_F(Whole_Phone, lists_every_contact_and_takes_every_name) {
    connect_to({"--contacts", "5000", "--odd-contacts"});
    std::multiset<std::string> before = people();
    EXPECT_GT(before.size(), 5000U);
    EXPECT_EQ(contacts().quiet.m_LB_Quiet.text(), "");
    desktop.use_dialog([](Dialog& dialog) {
        dynamic_cast<Contacts_Add&>(dialog).m_Edit_Name.type("a*b|c];','\"\n\U0001F600");
        dynamic_cast<Contacts_Add&>(dialog).m_Edit_PhoneNumber.type("+1*2");
        dialog.OnBT_OK();
    });
    contacts().OnBT_AddContacts();
    desktop.finish_work();
    before.insert("a*b|c];','\"\n\U0001F600 | +1*2");
    EXPECT_EQ(people(), before);
    contacts().m_table.select({300}, 300);
    before.erase(before.find(rows()[300].col_name + " | " + rows()[300].col_phone_number));
    desktop.answer_alert(yes);
    contacts().OnBT_DeleteContacts();
    desktop.finish_work();
    EXPECT_EQ(people(), before);
}

TEST_F(Whole_Phone, gives_contacts_back_that_were_exported) {
    connect_to({"--contacts", "20"});
    desktop.use_dialog([](Dialog& dialog) {
        dynamic_cast<Contacts_Add&>(dialog).m_Edit_Name.type("star*na|me");
        dynamic_cast<Contacts_Add&>(dialog).m_Edit_PhoneNumber.type("+38*1|0");
        dialog.OnBT_OK();
    });
    load_contacts();
    contacts().OnBT_AddContacts();
    desktop.finish_work();
    const std::multiset<std::string> before = people();
    EXPECT_EQ(before.count("star*na|me | +38*1|0"), 1U);
    desktop.choose_file(file("people"));
    contacts().OnBT_ContactsExport();
    desktop.finish_work();
    desktop.answer_alert(yes);
    contacts().OnBT_Contacts_DelAll();
    desktop.finish_work();
    ASSERT_TRUE(people().empty());
    contacts().ContactsImport(file("people.HTML"));
    desktop.finish_work();
    EXPECT_EQ(people(), before);
}

TEST_F(Whole_Phone, deletes_the_message_and_the_file_that_were_meant) {
    connect_to({"--messages", "1200"});
    document.OnBT_SMS();
    desktop.finish_work();
    SMS_TableSource& messages = *g_sms_tablesource;
    const auto ids = [&] {
        std::set<std::string> all;
        for (const auto& row : messages.table_rows) all.insert(row.col_sms_id);
        return all;
    };
    std::set<std::string> expected = ids();
    ASSERT_EQ(expected.size(), 1200U);
    const std::string meant = messages.table_rows[700].col_sms_id;
    EXPECT_GT(std::stoll(meant), 4294967296);
    messages.m_table.select({700}, 700);
    desktop.answer_alert(yes);
    messages.OnClick_Button_Delete();
    desktop.finish_work();
    expected.erase(meant);
    EXPECT_EQ(ids(), expected);

    auto& photos = dynamic_cast<View_Photo&>(*document.m_views[DEFINE_VIEW_Photo]).source;
    const int before = photos.table_rows.count();
    const std::string name = std::string(200, 'n') + "*|.jpg";
    std::ofstream(file(name)) << "picture";
    desktop.answer_alert(0);
    photos.Add_Files({file(name)});
    desktop.finish_work();
    int added = 0;
    while (added < before &&
           !photos.table_rows[static_cast<std::size_t>(added)].photo_file_path.ends_with(name))
        ++added;
    ASSERT_EQ(photos.table_rows.count(), before + 1);
    EXPECT_GT(std::stoll(photos.table_rows[static_cast<std::size_t>(added)].photo_id), 4294967296);
    photos.m_table.select({added}, added);
    desktop.answer_alert(yes);
    photos.OnBT_Delete();
    desktop.finish_work();
    EXPECT_EQ(photos.table_rows.count(), before);
}

TEST_F(Whole_Phone, says_why_it_refuses) {
    connect_to({"--contacts", "3", "--refuse-writes"});
    EXPECT_THAT(document.m_LB_Agent.text(), HasSubstr("Velk may not do everything with contacts,"));
    const auto before = people();
    contacts().m_table.select({0, 1}, 0);
    desktop.answer_alert(yes);
    contacts().OnBT_DeleteContacts();
    desktop.finish_work();
    EXPECT_EQ(contacts().quiet.m_LB_Quiet.text(),
              "2 of 2 failed: The phone does not let Velk change contacts.");
    EXPECT_EQ(people(), before);
    desktop.answer_alert(yes);
    document.OnMenu_RemoveAgent();
    desktop.answer_alert(0);
    desktop.finish_work();
    EXPECT_EQ(g_connected_adb, 0);
    EXPECT_EQ(document.m_LB_Agent.text(), "");
}

}  // namespace
}  // namespace velk
