#include "managers/sms_contacts.h"

#include "base/text.h"
#include "managers/filling.h"
#include "ui/busy_line.h"
#include "ui/guarded_worker.h"
#include "ui/main_window.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* command_list_contacts = "14";

}  // namespace

SMS_Contacts::SMS_Contacts(Main_Window& window) : Dialog("SMS_Contacts"), window_(window) {
    g_SMS_Contacts = this;
    window_title.set_text("Choose Contacts");
    table = &m_table;
    table_title = "Contacts";
    empty_text = "The contacts on your phone are listed here.";
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
    const Busy_Note note(window_.desktop(), window_.busy_line(), "Waiting for the phone: contacts");
    Filling filling(window_.desktop(), rows, m_table);
    std::vector<sock_apk::CONTACT> records;
    bool too_long = false;
    sock_apk().send_command_get_contatcts_array(command_list_contacts, records, &too_long);
    std::vector<Contacts_TableSource_Column> loaded;
    for (const sock_apk::CONTACT& record : records)
        loaded.push_back(row_of(record, loaded.size() + 1));
    filling.append(std::move(loaded), [](const Contacts_TableSource_Column&) {});
    filling.post([this, too_long] { m_LB_Quiet.set_text(too_long ? contacts_are_too_many : ""); });
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
