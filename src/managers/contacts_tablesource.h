// The contacts section: the table of the phone's contacts and the commands on it.
#pragma once

#include <array>
#include <string>

#include "ui/main_window.h"
#include "ui/outlets.h"
#include "ui/section.h"
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

/// Made with the main window and living as long; registers itself as g_contacts_tablesource.
/// User-interface thread, but for the bodies of its workers.
class Contacts_TableSource {
  public:
    explicit Contacts_TableSource(Main_Window& window);
    ~Contacts_TableSource();
    Contacts_TableSource(const Contacts_TableSource&) = delete;
    Contacts_TableSource& operator=(const Contacts_TableSource&) = delete;

    Row_List<Contacts_TableSource_Column> table_rows;
    Table m_table{"m_table_Contacts", table_rows};
    Label m_LB_Tips_Contacts{"m_LB_Tips_Contacts"};  // the section's status line
    Label m_LB_Message{"m_LB_Message"};              // a second status text
    Level_Indicator m_Progress_1{"m_Progress_1", 100};
    int selected_row = -1;  // index of the row last selected, -1 for none

    /// Reloads the table from the phone, unless it is loading.
    void OnBT_Contacts_Refresh();
    /// Starts a load, unless one runs.
    void ContactsLoad();
    /// The table's selection changed.
    void OnTableView_SelectedRow();
    /// Puts the number of rows into the toolbar's Contacts button.
    void refresh_button_contacts_title();

    /// What the window shows of all this.
    Section section;

  private:
    /// Worker: asks the phone for all contacts and appends a row for each.
    void TableView_FullData();
    /// Appends one loaded row and tells of it.
    void append(const Contacts_TableSource_Column& row);

    Main_Window& window_;
};

}  // namespace velk
