#pragma once

#include "managers/contacts_tablesource.h"
#include "managers/manager_fixture.h"

namespace velk {

/// The contacts manager with a phone whose contacts the test lists.
class Contacts_Test : public Manager_Test {
  protected:
    Contacts_Test() {
        recorder.watch(contacts.m_LB_Tips_Contacts);
        recorder.watch(contacts.m_table);
        g_int_count_contacts = 0;
    }
    ~Contacts_Test() override { window.test_desktop.end_work(); }

    void load(const std::vector<Agent_Double::Contact>& on_the_phone) {
        agent.reply_to(14, Agent_Double::contacts(on_the_phone));
        contacts.OnBT_Contacts_Refresh();
        finish();
    }
    /// Loads three contacts and forgets what that looked like.
    void load_three() {
        load({{"7", "Ann", "555"}, {"8", "Ben", "666"}, {"9", "Cat", "777"}});
        recorder.clear();
    }
    void select(const std::vector<int>& rows) { contacts.m_table.select(rows, rows.back()); }
    std::vector<std::string> column(int index) const {
        std::vector<std::string> cells;
        for (int row = 0; row < contacts.table_rows.count(); ++row)
            cells.push_back(contacts.table_rows.cell(row, index));
        return cells;
    }
    std::vector<std::string> status_lines() { return recorder.lines_of("m_LB_Tips_Contacts"); }
    const std::string& status() const { return contacts.m_LB_Tips_Contacts.text(); }
    const std::string& quiet() const { return contacts.quiet.m_LB_Quiet.text(); }

    Contacts_TableSource contacts{window};
};

}  // namespace velk
