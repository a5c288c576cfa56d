#include "managers/contacts_dialogs.h"

namespace velk {

Contacts_Add::Contacts_Add() : Dialog("Contacts_Add") {
    window_title.set_text("Add Contact");
    fields = {{.caption = "Name", .takes = &m_Edit_Name},
              {.caption = "Phone Number", .takes = &m_Edit_PhoneNumber}};
    commands = ok_and_cancel();
}

Contacts_Edit::Contacts_Edit() : Dialog("Contacts_Edit") {
    fields = {{.caption = "ID", .shows = &m_LB_ID},
              {.caption = "Name", .takes = &m_Edit_Name},
              {.caption = "Phone Number", .takes = &m_Edit_PhoneNumber}};
    commands = ok_and_cancel();
}

}  // namespace velk
