#include "managers/sms_send.h"

#include <algorithm>

#include "base/text.h"
#include "base/trace.h"
#include "managers/phone_tool.h"
#include "ui/busy_line.h"
#include "ui/desktop.h"
#include "ui/guarded_worker.h"
#include "ui/main_window.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr int longest_message = 140;  // UTF-16 code units
constexpr char entry_end = ';';

/// Takes the text up to the next ";" off `rest`, and that too.
std::string take_entry(std::string_view& rest) {
    const std::size_t end = std::min(rest.find(entry_end), rest.size());
    const std::string entry(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return entry;
}

}  // namespace

SMS_Send::SMS_Send(Main_Window& window) : Dialog("SMS_Send"), window_(window) {
    fields = {{.caption = "To",
               .takes = &m_ET_Send_Contects_telname,
               .beside = Command{.name = "OnBT_Contacts",
                                 .caption = "Contacts",
                                 .icon = "contacts",
                                 .run = [this] { OnBT_Contacts(); }}},
              {.caption = "Message", .takes = &m_ET_SMS_Content, .many_lines = true}};
    status = &m_LB_Tips;
    quiet = &m_LB_Quiet;
    commands = {
        {.name = "OnBT_Send", .caption = "Send", .icon = "send", .run = [this] { OnBT_Send(); }}};
    m_ET_SMS_Content.on_typed([this] { OnChanged_ET_SMS_Content(); });
}

Desktop& SMS_Send::desktop() {
    return window_.desktop();
}

void SMS_Send::showWindow() {
    phone_ = g_device_serial_number;
    desktop().open_dialog(*this, [] {});
}

void SMS_Send::OnChanged_ET_SMS_Content() {
    m_LB_Tips.set_text(format("%d characters", utf16_length(m_ET_SMS_Content.text())));
}

// --- recipients -----------------------------------------------------------------------------

void SMS_Send::OnBT_Contacts() {
    if (!picker_) picker_ = std::make_unique<SMS_Contacts>(window_);
    g_SMS_Contacts->ContactsLoad();
    desktop().open_dialog(*g_SMS_Contacts, [this] {
        if (g_SMS_Contacts->bOK) take_picked();
    });
}

void SMS_Send::take_picked() {
    m_contacts = g_SMS_Contacts->contacts;
    std::string recipients;
    for (const sock_apk::CONTACT& contact : m_contacts)
        recipients += contact.name + "(" + contact.tel + ")" + entry_end;
    m_ET_Send_Contects_telname.set_text(recipients);
}

void SMS_Send::refresh_contacts(const std::string& recipients) {
    // All are gathered before one is added: an entry is known by those that were there before.
    std::vector<sock_apk::CONTACT> typed;
    for (std::string_view rest = recipients;;) {
        const std::string entry = take_entry(rest);
        log_line("value =%s", entry.c_str());
        if (entry.empty()) break;
        if (is_existed_in_choose_contacts(entry)) continue;
        typed.emplace_back().tel = entry;
    }
    m_contacts.insert(m_contacts.end(), typed.begin(), typed.end());
}

bool SMS_Send::is_existed_in_choose_contacts(const std::string& entry) const {
    return std::any_of(m_contacts.begin(), m_contacts.end(), [&](const sock_apk::CONTACT& contact) {
        return !contact.tel.empty() && entry.find(contact.tel) != std::string::npos;
    });
}

// --- sending --------------------------------------------------------------------------------

bool SMS_Send::may_be_sent() {
    const int length = utf16_length(m_ET_SMS_Content.text());
    if (m_ET_Send_Contects_telname.text().empty()) {
        m_LB_Tips.set_text("Please select contacts or enter phone number!");
        return false;
    }
    if (length == 0) {
        m_LB_Tips.set_text("Please enter sms contents!");
        return false;
    }
    m_LB_Tips.set_text("");
    m_LB_Quiet.set_text("");
    if (length <= longest_message) return true;
    m_LB_Tips.set_text(
        format("%d characters > 140 character,please less character to 140 characters.", length));
    return false;
}

void SMS_Send::OnBT_Send() {
    if (!may_be_sent()) return;
    if (g_device_serial_number != phone_) return m_LB_Quiet.set_text(another_phone);
    refresh_contacts(m_ET_Send_Contects_telname.text());
    const Job job{m_ET_SMS_Content.text(), m_ET_Send_Contects_telname.text(), m_contacts, phone_};
    run_command(desktop(), "send message", [this, job] { send(job); });
}

void SMS_Send::send(const Job& job) {
    Busy_Note note(desktop(), window_.busy_line(), "Sending");
    sock_apk agent;
    std::string failed;
    std::string reason;  // of the last one that failed
    for (std::size_t i = 0; i < job.contacts.size() && !desktop().closing(); ++i) {
        const sock_apk::CONTACT& contact = job.contacts[i];
        note.say(format("Sending %zu of %zu", i + 1, job.contacts.size()));
        log_line("TelNumber = %s,Name = %s", contact.tel.c_str(), contact.name.c_str());
        if (!contains_ignoring_case(job.recipients, contact.tel))  // it was taken out by hand
            log_line("NOT FOUND : TelNumber = %s,Name = %s", contact.tel.c_str(),
                     contact.name.c_str());
        else if (phone_in_use(desktop()) != job.phone || !send_one(agent, job.message, contact))
            failed += (failed.empty() ? "Not sent to " : ", ") + contact.tel;
        if (!agent.refusal().empty()) reason = agent.refusal();
    }
    if (failed.empty()) return;
    failed += reason.empty() ? "." : ": " + reason;
    desktop().post([this, failed] { m_LB_Quiet.set_text(failed); });
}

bool SMS_Send::send_one(sock_apk& agent, const std::string& message,
                        const sock_apk::CONTACT& contact) {
    desktop().post([] { g_phone_was_changed = 1; });
    if (agent.send_sms(message.c_str(), contact.tel.c_str()).empty()) return false;
    desktop().post([this, contact] {
        m_LB_Tips.set_text(format("Successfully send a message to \"%s(%s)\"", contact.name.c_str(),
                                  contact.tel.c_str()));
    });
    return true;
}

}  // namespace velk
