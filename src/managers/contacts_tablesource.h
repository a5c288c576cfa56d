// The contacts section: the table of the phone's contacts and the commands on it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "managers/contacts_dialogs.h"
#include "managers/contacts_rows.h"
#include "managers/table_source.h"

namespace velk {

// What is missing in a dialog. The first is also said of a missing number; it has always been so.
inline constexpr const char* msg_AddNothingContact = "Please make sure you enter the Name!";
inline constexpr const char* msg_AddNothingContact_Number =
    "Please make sure you enter the Number!";

/// Made with the main window and living as long; registers itself as g_contacts_tablesource.
/// User-interface thread, but for the bodies of its workers.
class Contacts_TableSource : public Table_Source {
  public:
    explicit Contacts_TableSource(Main_Window& window);
    ~Contacts_TableSource();

    Row_List<Contacts_TableSource_Column> table_rows;
    Table m_table{"m_table_Contacts", table_rows};
    Label m_LB_Tips_Contacts{"m_LB_Tips_Contacts"};  // the section's status line
    Label m_LB_Message{"m_LB_Message"};              // a second status text, for the import
    Level_Indicator m_Progress_1{"m_Progress_1", 100};

    // --- the section's buttons ---

    void OnBT_AddContacts();
    void OnBT_ModifyContacts();
    void OnBT_DeleteContacts();
    void OnBT_Contacts_DelAll() { ContactsDeleteAll(); }
    /// Reloads the table from the phone, unless it is loading.
    void OnBT_Contacts_Refresh();
    void OnBT_ContactsExport();
    void OnBT_ContactsImport();

    // --- for other parts of the program ---

    /// Starts a load, unless one runs.
    void ContactsLoad();
    /// Asks and deletes all contacts of the phone, unless that is under way.
    void ContactsDeleteAll();
    /// Imports the file, unless an import runs.
    void ContactsImport(const std::string& path);
    /// The table's selection changed.
    void OnTableView_SelectedRow();
    /// Puts the number of rows into the toolbar's Contacts button.
    void refresh_button_contacts_title();
    /// The modal "Information" box of the informational style; `answered` runs behind its "OK".
    void show_message(const std::string& text, std::function<void()> answered);

    // --- files; each gives whether the file was written or could be read ---

    /// The path that the person chose, `extension` appended; empty when cancelled. Worker.
    std::string get_save_fullpath(const std::string& extension);
    /// Writes the table as a page. Worker.
    bool save_to_html(const std::string& path);
    /// Adds every contact of an exported page to the phone with this serial number. Worker.
    bool read_html(const std::string& path, const std::string& phone);
    /// Writes the table as a property list. Worker.
    bool save_xml(const std::string& path);
    /// Adds every contact of a property list to the table and to the phone. Worker.
    bool read_xml(const std::string& path);

  private:
    // Commands, once the person has confirmed them.
    void add_what_was_typed();
    void modify_as_typed(const std::string& id);
    void refuse(const std::string& alert, const std::string& tips);
    /// Behind every change: a load that is under way may have missed it.
    void reload_after_a_change();

    // Rows.
    void Contacts_Add(const std::string& name, const std::string& Tel_PhoneNumber,
                      const std::string& Tel_ID);
    void Contacts_Modify(const std::string& name, const std::string& Tel_PhoneNumber);

    // Workers.
    /// Asks the phone for all contacts and appends a row for each.
    void TableView_FullData();
    void delete_records_all();
    void thread_do_read_xml(const std::string& path, const std::string& phone);
    /// Adds the page's contacts to the phone. Gives why not all came over; empty when they did.
    std::string import_rows(std::string_view rows, const std::string& phone);
    // `refusal` (when given) is set to the reason why the phone did not do it, empty when it gave
    // none.

    /// Adds on the phone, then in the table; false when the phone did not answer.
    bool Contacts_Add_One(const std::string& name, const std::string& Tel_PhoneNumber,
                          std::string* refusal = nullptr);
    /// Gives the id that the phone gave, empty when it gave none; `answered` (when given) tells
    /// whether it said anything.
    std::string Contacts_Add_To_APK(const std::string& name, const std::string& Tel_PhoneNumber,
                                    bool* answered = nullptr, std::string* refusal = nullptr);
    bool Contacts_Modify_To_APK(const std::string& name, const std::string& Tel_PhoneNumber,
                                const std::string& Tel_ID);
    bool Contacts_Del_To_APK(const std::string& id, const std::string& Tel_Name,
                             const std::string& Tel_Number, std::string* refusal = nullptr);

    std::unique_ptr<velk::Contacts_Add> add_dialog_;    // made when first needed
    std::unique_ptr<velk::Contacts_Edit> edit_dialog_;  // the same
};

}  // namespace velk
