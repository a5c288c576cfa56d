// The picker of the composer: the phone's contacts in a dialog of their own.
#pragma once

#include <vector>

#include "agent/sock_apk.h"
#include "managers/contacts_rows.h"
#include "ui/command.h"
#include "ui/dialog.h"
#include "ui/table.h"

namespace velk {

class Main_Window;

/// Made when first needed and living as long as the composer; registers itself as g_SMS_Contacts.
/// User-interface thread, but for the body of its worker.
class SMS_Contacts : public Dialog {
  public:
    /// Starts a load.
    explicit SMS_Contacts(Main_Window& window);
    ~SMS_Contacts() override;

    Row_List<Contacts_TableSource_Column> rows;
    Table m_table{"m_table_SMS_Contacts", rows};
    Label m_LB_Quiet{"m_LB_Quiet_SMS_Contacts"};  // what is wrong with the list
    /// Chosen with OK: name and number. Whoever closes it with no row selected keeps the last ones.
    std::vector<sock_apk::CONTACT> contacts;

    /// Reads the contacts from the phone again, unless that is under way.
    void ContactsLoad();
    /// Copies the selected rows into `contacts`.
    void get_selected();
    void OnBT_OK() override;

  private:
    /// Worker.
    void TableView_FullData();

    /// 1 while a load may start; the contacts section has its own.
    static inline Flag g_can_click_contacts_load = 1;

    Main_Window& window_;
};

}  // namespace velk
