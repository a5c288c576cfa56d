// What a person can do to the contacts of the phone, one by one and all at once.
#include "agent/sock_apk.h"
#include "base/trace.h"
#include "managers/contacts_tablesource.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

/// A contact without a name goes by its number.
std::string name_or(const Text_Field& typed, const std::string& number) {
    return typed.text().empty() ? number : typed.text();
}

std::string result_line(bool good, const char* done, const char* failed, const std::string& name,
                        const std::string& number) {
    return format("%s '%s | %s'.", good ? done : failed, name.c_str(), number.c_str());
}

}  // namespace

void Contacts_TableSource::show_message(const std::string& text, std::function<void()> answered) {
    desktop().open_alert({.title = "Information",
                          .text = text,
                          .buttons = {"OK"},
                          .style = Alert_Style::informational},
                         [answered = std::move(answered)](int) { answered(); });
}

void Contacts_TableSource::refuse(const std::string& alert, const std::string& tips) {
    show_message(alert, [this, tips] { say(tips); });
}

// --- add ---

void Contacts_TableSource::OnBT_AddContacts() {
    say("");
    if (!add_dialog_) add_dialog_ = std::make_unique<velk::Contacts_Add>();
    add_dialog_->m_Edit_Name.set_text("");
    add_dialog_->m_Edit_PhoneNumber.set_text("");
    open_dialog(*add_dialog_, [this] { add_what_was_typed(); });
}

void Contacts_TableSource::add_what_was_typed() {
    const std::string number = without_separators(add_dialog_->m_Edit_PhoneNumber.text());
    // It asks for the name although the number is what is missing; it has always been so.
    if (number.empty()) return refuse(msg_AddNothingContact, msg_AddNothingContact);
    const std::string name = name_or(add_dialog_->m_Edit_Name, number);
    run_command(desktop(), "add contact", [this, name, number] {
        const Busy_Note note = busy("Adding a contact");
        std::string refusal;
        Contacts_Add_One(name, number, &refusal);
        post_reason(refusal);
        post([this] {
            refresh_button_contacts_title();
            reload_after_a_change();
        });
    });
}

bool Contacts_TableSource::Contacts_Add_One(const std::string& name,
                                            const std::string& Tel_PhoneNumber,
                                            std::string* refusal) {
    bool answered = false;
    const std::string id = Contacts_Add_To_APK(name, Tel_PhoneNumber, &answered, refusal);
    post([this, name, Tel_PhoneNumber, id] { Contacts_Add(name, Tel_PhoneNumber, id); });
    return answered;
}

std::string Contacts_TableSource::Contacts_Add_To_APK(const std::string& name,
                                                      const std::string& Tel_PhoneNumber,
                                                      bool* answered, std::string* refusal) {
    sock_apk phone;
    const std::string reply = phone.add_one_contact(name.c_str(), Tel_PhoneNumber.c_str());
    std::string id = sock_apk::get_contact_id(reply);
    post_change();
    if (answered) *answered = !reply.empty();
    if (refusal) *refusal = phone.refusal();
    post_status(
        result_line(!reply.empty(), "Successfully added", "Faild to add", name, Tel_PhoneNumber));
    return id;
}

void Contacts_TableSource::Contacts_Add(const std::string& name, const std::string& Tel_PhoneNumber,
                                        const std::string& Tel_ID) {
    table_rows.push_back({std::to_string(table_rows.size() + 1), Tel_ID, name, Tel_PhoneNumber});
    m_table.reload_appended();
    m_table.scroll_to_last();
}

// --- modify ---

void Contacts_TableSource::OnBT_ModifyContacts() {
    if (selected_row == -1) return;
    const auto& row = table_rows[static_cast<std::size_t>(selected_row)];
    if (!edit_dialog_) edit_dialog_ = std::make_unique<velk::Contacts_Edit>();
    edit_dialog_->window_title.set_text("Modify Contact......");
    edit_dialog_->m_Edit_Name.set_text(row.col_name);
    edit_dialog_->m_Edit_PhoneNumber.set_text(row.col_phone_number);
    edit_dialog_->m_LB_ID.set_text(row.col_id);
    open_dialog(*edit_dialog_, [this, id = row.col_id] { modify_as_typed(id); });
}

void Contacts_TableSource::modify_as_typed(const std::string& id) {
    const std::string number = without_separators(edit_dialog_->m_Edit_PhoneNumber.text());
    // Box and status line have always told two different things here.
    if (number.empty()) return refuse(msg_AddNothingContact_Number, msg_AddNothingContact);
    const std::string name = name_or(edit_dialog_->m_Edit_Name, number);
    const bool accepted = run_command(desktop(), "modify contact", [this, name, number, id] {
        const Busy_Note note = busy("Modifying a contact");
        Contacts_Modify_To_APK(name, number, id);
        post([this] { list_may_be_old(); });
    });
    if (accepted) Contacts_Modify(name, number);  // before anything that the worker posts
}

void Contacts_TableSource::Contacts_Modify(const std::string& name,
                                           const std::string& Tel_PhoneNumber) {
    const int selected = m_table.selected_row();
    if (selected >= 0) {
        auto& row = table_rows[static_cast<std::size_t>(selected)];
        row.col_name = name;
        row.col_phone_number = Tel_PhoneNumber;
    }
    m_table.reload_texts();
    m_table.scroll_to_last();
}

bool Contacts_TableSource::Contacts_Modify_To_APK(const std::string& name,
                                                  const std::string& Tel_PhoneNumber,
                                                  const std::string& Tel_ID) {
    sock_apk phone;
    const bool good =
        phone.modify_one_contact(name.c_str(), Tel_PhoneNumber.c_str(), Tel_ID.c_str());
    post_reason(phone.refusal());
    post_status(
        result_line(good, "Successfully modified", "Faild to modify", name, Tel_PhoneNumber));
    return good;
}

// --- delete ---

void Contacts_TableSource::OnBT_DeleteContacts() {
    if (selected_row == -1) return;
    ask_person(yes_or_no(delete_selected_question), [this] {
        run_command(desktop(), "delete contacts", [this, phone = phone_in_use(desktop())] {
            const bool deleted =
                delete_selected(phone, table_rows, m_table, [this](const auto& row) {
                    Outcome outcome;
                    outcome.good = Contacts_Del_To_APK(row.col_id, row.col_name,
                                                       row.col_phone_number, &outcome.reason);
                    return outcome;
                });
            if (deleted) post([this] { reload_after_a_change(); });
        });
    });
}

bool Contacts_TableSource::Contacts_Del_To_APK(const std::string& id, const std::string& Tel_Name,
                                               const std::string& Tel_Number,
                                               std::string* refusal) {
    sock_apk phone;
    const bool good = phone.del_one_contact(id.c_str());
    if (refusal) *refusal = phone.refusal();
    const std::string line =
        result_line(good, "Successfully deleted", "Faild to delete", Tel_Name, Tel_Number);
    post_status(line);
    trace("%s\n", line.c_str());
    post_change();
    post([this] { refresh_button_contacts_title(); });
    return good;
}

void Contacts_TableSource::ContactsDeleteAll() {
    start_guarded(desktop(), g_can_click_contacts_delete_all, "delete contacts",
                  [this, phone = phone_in_use(desktop())](Held_Flag& running) {
                      if (!person_agrees(delete_all_question, phone)) return;
                      delete_records_all();
                      running.give_back();
                      post([this] { reload_after_a_change(); });
                  });
}

void Contacts_TableSource::delete_records_all() {
    const Busy_Note note = busy("Deleting all contacts");
    sock_apk phone;
    const bool good = phone.do_command(phone.getCommand_DelAllContacts());
    post_change();
    post_reason(phone.refusal());
    post([this, good] {
        say(good ? "Successfully deleted all contacts!" : "Faild to delete all contacts!");
        table_rows.clear();
        m_table.reload();
    });
}

}  // namespace velk
