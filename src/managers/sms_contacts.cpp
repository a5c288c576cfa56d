#include "managers/sms_contacts.h"

#include "base/text.h"
#include "managers/filling.h"
#include "ui/busy_line.h"
#include "ui/guarded_worker.h"
#include "ui/main_window.h"
#include "ui/program_wide.h"

namespace velk {

SMS_Contacts::SMS_Contacts(Main_Window& window) : Dialog("SMS_Contacts"), window_(window) {
    g_SMS_Contacts = this;
    window_title.set_text("Choose Contacts");
    table = &m_table;
    m_table.editable = false;  // what is chosen is sent to
    table_title = "Contacts";
    empty_text = contacts_empty_text;
    quiet = &m_LB_Quiet;
    commands = ok_and_cancel();
    ContactsLoad();
}

SMS_Contacts::~SMS_Contacts() {
    g_SMS_Contacts = nullptr;
}

void SMS_Contacts::ContactsLoad() {
    start_guarded(window_.desktop(), g_can_click_contacts_load, "picker",
                  [this](Held_Flag&) { TableView_FullData(); });
}

void SMS_Contacts::TableView_FullData() {
    const Busy_Note note(window_.desktop(), window_.busy_line(), contacts_wait_text);
    Filling filling(window_.desktop(), rows, m_table);
    std::string missing;
    filling.append(fetch_contact_rows(missing), [](const Contacts_TableSource_Column&) {});
    filling.post_while_mine([this, missing] { m_LB_Quiet.set_text(missing); });
}

void SMS_Contacts::get_selected() {
    if (m_table.selected_rows().empty()) return;
    contacts.clear();
    for (const int index : m_table.selected_rows()) {
        const Contacts_TableSource_Column& row = rows[static_cast<std::size_t>(index)];
        sock_apk::CONTACT chosen;
        // As they will stand in the composer's field, by which they are known again.
        chosen.name = as_utf8(row.col_name);
        chosen.tel = as_utf8(row.col_phone_number);
        contacts.push_back(std::move(chosen));
    }
}

void SMS_Contacts::OnBT_OK() {
    get_selected();
    Dialog::OnBT_OK();
}

}  // namespace velk
