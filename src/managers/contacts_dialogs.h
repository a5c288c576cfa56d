// The two small dialogs of the contacts section.
#pragma once

#include "ui/dialog.h"

namespace velk {

/// Asks for a new contact.
class Contacts_Add : public Dialog {
  public:
    Contacts_Add();
    Text_Field m_Edit_Name{"m_Edit_Name"};
    Text_Field m_Edit_PhoneNumber{"m_Edit_PhoneNumber"};
};

/// Shows a contact for changing.
class Contacts_Edit : public Dialog {
  public:
    Contacts_Edit();
    Text_Field m_Edit_Name{"m_Edit_Name"};
    Text_Field m_Edit_PhoneNumber{"m_Edit_PhoneNumber"};
    Label m_LB_ID{"m_LB_ID"};
};

}  // namespace velk
