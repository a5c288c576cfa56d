// What the buttons of the messages section do to the phone and with files.
#include "base/often_tools_function.h"
#include "managers/save_page.h"
#include "managers/sms_export.h"
#include "managers/sms_tablesource.h"
#include "ui/program_wide.h"

namespace velk {

// --- delete ---------------------------------------------------------------------------------

bool SMS_TableSource::SMS_Del_To_APK(const std::string& id, const std::string& SMS_ThreadID,
                                     std::string* refusal) {
    post_change();
    sock_apk phone;
    // Which of the three a phone understands cannot be told, nor can their answers.
    phone.del_one_sms(id.c_str(), SMS_ThreadID.c_str());
    phone.del_one_sms_for_NoS4(id.c_str(), SMS_ThreadID.c_str());
    const bool deleted = phone.del_one_sms_for_ver2(id.c_str(), SMS_ThreadID.c_str());
    if (refusal) *refusal = phone.refusal();
    return deleted;
}

Outcome SMS_TableSource::delete_one(const SMS_TableSource_Column& row) {
    std::string refusal;
    const bool deleted = SMS_Del_To_APK(row.col_sms_id, row.col_sms_thread_id, &refusal);
    post_status(format(deleted ? "Successfully deleted '%s'." : "Faild to delete '%s'.",
                       row.col_sms_phone_number.c_str()));
    return {deleted, refusal};
}

void SMS_TableSource::OnClick_Button_Delete() {
    if (selected_row == -1) return;
    ask_person(yes_or_no(delete_selected_question), [this] {
        run_command(desktop(), "delete messages",
                    [this, phone = phone_in_use(desktop())] { delete_selected_messages(phone); });
    });
}

void SMS_TableSource::delete_selected_messages(const std::string& phone) {
    const bool deleted = delete_selected(phone, table_rows, m_table,
                                         [this](const auto& row) { return delete_one(row); });
    if (!deleted) return;
    post([this] {
        OnTable_Selected();
        reload_after_a_change();
    });
}

void SMS_TableSource::SMSDeleteAll() {
    start_guarded(desktop(), g_can_click_sms_delete_all, "delete all",
                  [this, phone = phone_in_use(desktop())](Held_Flag&) {
                      if (person_agrees(delete_all_question, phone)) sms_delete_all(phone);
                  });
}

void SMS_TableSource::sms_delete_all(const std::string& phone) {
    const bool was_coming = list_is_coming();
    const int clears = desktop().ask([this] { return table_rows.clears(); });
    const std::vector<SMS_TableSource_Column> tried = rows_on_the_screen(table_rows, m_table);
    bool refused = false;
    for_each_listed(phone, "Deleting", tried, [&](const SMS_TableSource_Column& row) {
        Outcome outcome = delete_one(row);
        refused |= !outcome.reason.empty();
        return outcome;
    });
    post([this, was_coming, clears, refused, count = tried.size()] {
        m_LB_sms_content.set_text("");
        if (count == 0 && was_coming)
            return quiet.tell_reason("The list was still coming, so nothing was deleted.");
        const bool some_were_not_tried = table_rows.clears() != clears || table_rows.size() > count;
        table_rows.clear();
        m_table.reload();
        // A phone that says that messages stayed has them still.
        if (refused) return reload_after_a_change();
        // No load follows; one that is under way has lost its table.
        list_may_be_old();
        if (some_were_not_tried) list_is_old_now();
    });
}

// --- send -----------------------------------------------------------------------------------

SMS_Send& SMS_TableSource::composer() {
    if (!composer_) composer_ = std::make_unique<SMS_Send>(window_);
    return *composer_;
}

void SMS_TableSource::OnBT_SendSMS() {
    SMS_Send& dialog = composer();
    dialog.window_title.set_text("Send Message......");
    dialog.m_LB_Tips.set_text("");
    dialog.m_LB_Quiet.set_text("");
    dialog.m_ET_Send_Contects_telname.set_text("");
    dialog.m_ET_SMS_Content.set_text("");
    dialog.m_contacts.clear();
    dialog.showWindow();
}

// --- export ---------------------------------------------------------------------------------

void SMS_TableSource::OnBT_Export_SMS() {
    run_command(desktop(), "export messages", [this] {
        const std::string path = get_save_fullpath(File_Extension);
        const bool saved = save_to_html(path);
        post_status(
            format(saved ? "Successed to save \"%s\"." : "Faild to save \"%s\".", path.c_str()));
    });
}

std::string SMS_TableSource::get_save_fullpath(const std::string& extension) {
    return choose_save_path(desktop(), "save message to a *." + extension + " file", extension);
}

bool SMS_TableSource::save_to_html(const std::string& path) {
    const Busy_Note note = busy("Exporting messages");
    const bool coming = list_is_coming();
    const std::string data = sms_page_data(rows_on_the_screen(table_rows, m_table));
    return tell_saved(path, save_page(desktop(), path, "Messages", data), coming);
}

bool SMS_TableSource::save_to_txt(const std::string& path) {
    const std::string now = often_tools_function::get_current_date_time();
    const bool coming = list_is_coming();
    const std::string text = sms_plain_text(rows_on_the_screen(table_rows, m_table), now);
    return tell_saved(path, save_text(desktop(), path, text), coming);
}

}  // namespace velk
