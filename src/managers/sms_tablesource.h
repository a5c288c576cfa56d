// The messages section: the table of the phone's messages, the selected one in full, and the
// commands on them.
#pragma once

#include <memory>
#include <string>

#include "managers/sms_rows.h"
#include "managers/sms_send.h"
#include "managers/table_source.h"

namespace velk {

/// What exported files end in.
inline constexpr const char* File_Extension = "HTML";

/// Made with the main window and living as long; registers itself as g_sms_tablesource.
/// User-interface thread, but for the bodies of its workers.
class SMS_TableSource : public Table_Source {
  public:
    explicit SMS_TableSource(Main_Window& window);
    ~SMS_TableSource();

    Row_List<SMS_TableSource_Column> table_rows;
    Label m_LB_SMS_DateTime{"m_LB_SMS_DateTime"};  // of the selected message
    Label m_LB_Tel{"m_LB_Tel"};                    // the same
    Table m_table{"m_table_SMS", table_rows};
    Label m_LB_sms_content{"m_LB_sms_content"};      // of the selected message, in full
    Label m_LB_TIPS{"m_LB_TIPS"};                    // the section's status line
    Table m_TableView1{"m_TableView1", table_rows};  // a second table; nothing shows it

    // --- the section's buttons ---

    void OnBT_SendSMS();
    void OnClick_Button_Delete();
    void OnBT_SMS_DeleteAll() { SMSDeleteAll(); }
    /// Reloads the table from the phone, unless it is loading.
    void OnBT_Refresh();
    void OnBT_Export_SMS();

    // --- for other parts of the program ---

    /// Starts a load, unless one runs.
    void SMSLoad();
    /// Asks and deletes all messages of the table from the phone, unless that is under way.
    void SMSDeleteAll();
    /// The table's selection changed: shows that message in full, or empties the three labels.
    void OnTable_Selected();
    /// Puts the number of rows into the toolbar's SMS button.
    void refresh_button_sms_title();
    /// Made when first needed.
    SMS_Send& composer();

    // --- workers only ---

    /// Deletes one message on the phone. True when the agent answered; otherwise `refusal` (when
    /// given) is set to the reason, as far as the phone tells.
    bool SMS_Del_To_APK(const std::string& id, const std::string& SMS_ThreadID,
                        std::string* refusal = nullptr);
    /// Asks for the file to write: its path, empty when the person cancelled.
    std::string get_save_fullpath(const std::string& extension);
    // Each writes the table into a file; false when the file could not be written.
    bool save_to_html(const std::string& path);
    bool save_to_txt(const std::string& path);

  private:
    // Workers.
    void TableView_FullData();
    void delete_selected_messages(const std::string& phone);
    void sms_delete_all(const std::string& phone);
    /// Deletes the row's message on the phone and tells what became of it.
    Outcome delete_one(const SMS_TableSource_Column& row);

    /// Reloads behind a change of the phone's messages.
    void reload_after_a_change();

    std::unique_ptr<SMS_Send> composer_;
};

}  // namespace velk
