#include "managers/contacts_fixture.h"

namespace velk {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

class Contacts_Commands : public Contacts_Test {
  protected:
    /// The person types this into the add dialog and presses a button.
    void add(const std::string& name, const std::string& number, bool ok = true) {
        window.test_desktop.use_dialog([=](Dialog& dialog) {
            auto& fields = dynamic_cast<Contacts_Add&>(dialog);
            EXPECT_EQ(fields.m_Edit_Name.text() + fields.m_Edit_PhoneNumber.text(), "");
            fields.m_Edit_Name.type(name);
            fields.m_Edit_PhoneNumber.type(number);
            ok ? dialog.OnBT_OK() : dialog.OnBT_Cancel();
        });
        contacts.OnBT_AddContacts();
        finish();
    }
    void modify(const std::string& name, const std::string& number) {
        window.test_desktop.use_dialog([=](Dialog& dialog) {
            auto& fields = dynamic_cast<Contacts_Edit&>(dialog);
            fields.m_Edit_Name.type(name);
            fields.m_Edit_PhoneNumber.type(number);
            dialog.OnBT_OK();
        });
        contacts.OnBT_ModifyContacts();
        finish();
    }
    void confirm_and_delete() {
        window.test_desktop.answer_alert(yes);
        contacts.OnBT_DeleteContacts();
        finish();
    }
};

TEST_F(Contacts_Commands, adds_on_the_phone_then_in_the_table_and_reloads) {
    load_three();
    agent.reply_to('5', Agent_Double::added("104"));
    add("", "12|34");
    EXPECT_THAT(edits(), ElementsAre("5\0\x11\0\0\0\x0D\0\0\0"s + "12!34*12!34*|"));
    EXPECT_THAT(recorder.lines(),
                testing::IsSupersetOf({"dialog: Contacts_Add"s, "m_table_Contacts: 4 rows"s}));
    const auto lines = status_lines();
    EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 3),
                ElementsAre("m_LB_Tips_Contacts: ",
                            "m_LB_Tips_Contacts: Successfully added '12!34 | 12!34'.",
                            "m_LB_Tips_Contacts: Loading ......"));
    EXPECT_EQ(agent.codes().back(), "14");
    EXPECT_THAT(recorder.lines_of("title"),
                ElementsAre("title 0: Contacts(4)", "title 0: Contacts(3)"));
    EXPECT_TRUE(window.test_desktop.takes_input());
}

TEST_F(Contacts_Commands, keeps_the_row_of_a_contact_that_the_phone_did_not_take) {
    add("Zoe", "9");
    EXPECT_THAT(recorder.lines(), testing::Contains("m_table_Contacts: 1 rows"));
    EXPECT_THAT(status_lines(), testing::Contains("m_LB_Tips_Contacts: Faild to add 'Zoe | 9'."));
}

TEST_F(Contacts_Commands, refuses_an_empty_number_and_sends_nothing_after_cancel) {
    load_three();
    window.test_desktop.answer_alert(0);
    add("Ann", "");
    EXPECT_EQ(window.test_desktop.alerts().back().text, "Please make sure you enter the Name!");
    EXPECT_EQ(window.test_desktop.alerts().back().style, Alert_Style::informational);
    EXPECT_EQ(status(), "Please make sure you enter the Name!");
    select({1});
    window.test_desktop.answer_alert(0);
    modify("Ben", "");
    EXPECT_EQ(window.test_desktop.alerts().back().text, "Please make sure you enter the Number!");
    EXPECT_EQ(status(), "Please make sure you enter the Name!");
    add("Ann", "5", false);
    EXPECT_THAT(edits(), testing::IsEmpty());
}

TEST_F(Contacts_Commands, modifies_the_row_at_once_and_keeps_it_when_the_phone_refuses) {
    load_three();
    select({1});
    modify("Al", "9|");
    EXPECT_THAT(edits(), ElementsAre("{\0\x10\0\0\0\2\0\0\0Al\x08\0\0\0\2\0\0\0"s + "9!"));
    EXPECT_EQ(status(), "Faild to modify 'Al | 9!'.");
    EXPECT_THAT(column(2), ElementsAre("Ann", "Al", "Cat"));
    agent.reply_to('{', "ok");
    modify("", "77");  // the row is still selected
    EXPECT_EQ(status(), "Successfully modified '77 | 77'.");
    EXPECT_THAT(agent.codes(), testing::Not(testing::Contains("14").Times(2)));
}

TEST_F(Contacts_Commands, asks_nothing_of_another_phone_than_was_meant) {
    load_three();
    select({0});
    window.test_desktop.use_dialog([](Dialog& dialog) {
        dynamic_cast<Contacts_Edit&>(dialog).m_Edit_Name.type("Al");
        swap_phones();
        dialog.OnBT_OK();
    });
    contacts.OnBT_ModifyContacts();
    EXPECT_EQ(quiet(), another_phone);
    for (const auto& begin : {&Contacts_TableSource::OnBT_DeleteContacts,
                              &Contacts_TableSource::OnBT_Contacts_DelAll}) {
        contacts.quiet.tell_reason("");
        window.test_desktop.hold_alert();
        (contacts.*begin)();
        ASSERT_TRUE(
            window.test_desktop.pump_until([this] { return window.test_desktop.alert_is_open(); }));
        g_device_serial_number += "!";
        window.test_desktop.press(yes);
        finish();
        EXPECT_EQ(quiet(), another_phone);
    }
    EXPECT_THAT(edits(), testing::IsEmpty());
    EXPECT_EQ(contacts.table_rows.count(), 3);
}

TEST_F(Contacts_Commands, tries_every_selected_row_and_removes_them_all) {
    load_three();
    contacts.m_table.sort(2, false);  // Cat, Ben, Ann
    select({0, 1, 2});
    agent.reply_once_to('z', "ok");
    agent.reply_once_to('z', "");
    agent.reply_to('z', "ok");
    confirm_and_delete();
    EXPECT_THAT(edits(), ElementsAre("z\0\6\0\0\0\2\0\0\0"s + "9|", "z\0\6\0\0\0\2\0\0\0"s + "8|",
                                     "z\0\6\0\0\0\2\0\0\0"s + "7|"));
    const auto lines = status_lines();
    EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 3),
                ElementsAre("m_LB_Tips_Contacts: Successfully deleted 'Cat | 777'.",
                            "m_LB_Tips_Contacts: Faild to delete 'Ben | 666'.",
                            "m_LB_Tips_Contacts: Successfully deleted 'Ann | 555'."));
    EXPECT_THAT(recorder.lines_of("m_table_Contacts reloaded"),
                testing::Contains("m_table_Contacts reloaded: 0 rows"));
    EXPECT_EQ(agent.codes().back(), "14");
    EXPECT_EQ(quiet(), "1 of 3 failed.");
}

TEST_F(Contacts_Commands, deletes_nothing_without_a_yes_or_once_the_selection_has_vanished) {
    load_three();
    contacts.OnBT_DeleteContacts();  // nothing is selected: not even a question
    select({0});
    window.test_desktop.answer_alert(1);
    contacts.OnBT_DeleteContacts();
    window.test_desktop.hold_alert();
    contacts.OnBT_DeleteContacts();
    contacts.m_table.reload();
    window.test_desktop.press(yes);
    finish();
    EXPECT_EQ(window.test_desktop.beeps(), 1);
    EXPECT_THAT(edits(), testing::IsEmpty());
}

TEST_F(Contacts_Commands, leaves_the_rows_of_a_load_alone_that_came_during_a_delete) {
    load_three();
    select({0});
    window.test_desktop.answer_alert(yes);
    during_an_edit(
        'z', [this] { contacts.OnBT_DeleteContacts(); },
        [this] {
            contacts.ContactsLoad();
            EXPECT_TRUE(
                window.test_desktop.pump_until([] { return g_can_click_contacts_load == 1; }));
            recorder.clear();
        });
    // Nothing was taken out of the list that came meanwhile, until it was read again.
    EXPECT_THAT(
        recorder.lines_of("m_table_Contacts reloaded"),
        ElementsAre("m_table_Contacts reloaded: 3 rows", "m_table_Contacts reloaded: 0 rows"));
}

TEST_F(Contacts_Commands, deletes_all_on_the_phone_after_a_yes) {
    load_three();
    window.test_desktop.answer_alert(1);
    contacts.OnBT_Contacts_DelAll();
    finish();
    EXPECT_EQ(contacts.table_rows.count(), 3);
    EXPECT_THAT(recorder.lines(),
                ElementsAre("alert: Are your sure you want to delete all items?"));
    agent.reply_to(120, "ok");
    window.test_desktop.answer_alert(yes);
    contacts.OnBT_Contacts_DelAll();
    contacts.OnBT_Contacts_DelAll();  // one runs already
    finish();
    EXPECT_THAT(edits(), ElementsAre("x\0\0\0\0\0"s));
    EXPECT_EQ(status_lines()[0], "m_LB_Tips_Contacts: Successfully deleted all contacts!");
    EXPECT_EQ(agent.codes().back(), "14");
    EXPECT_EQ(g_can_click_contacts_delete_all, 1);
}

TEST_F(Contacts_Commands, ends_a_load_whose_table_a_delete_all_has_emptied) {
    load_three();
    std::promise<void> emptied;
    agent.reply_once_to(
        14, Agent_Double::held_back(Agent_Double::contacts({{"7", "Ann", "555"}}), emptied));
    agent.reply_to(120, "ok");
    contacts.OnBT_Contacts_Refresh();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return agent.requests().size() == 2; }));
    window.test_desktop.answer_alert(yes);
    contacts.OnBT_Contacts_DelAll();
    ASSERT_TRUE(window.test_desktop.pump_until([this] { return contacts.table_rows.empty(); }));
    ASSERT_TRUE(
        window.test_desktop.pump_until([] { return g_can_click_contacts_delete_all == 1; }));
    emptied.set_value();
    finish();
    EXPECT_EQ(contacts.table_rows.count(), 0);
    EXPECT_EQ(status(), "Successfully deleted all contacts!");
    EXPECT_EQ(recorder.lines_of("title").back(), "title 0: Contacts(0)");
    EXPECT_EQ(g_table_contacts_need_refresh, 1);  // that load may have missed the change
    EXPECT_THAT(quiet(), testing::StartsWith("The phone was changed while the list came."));
}

}  // namespace
}  // namespace velk
