// The messages section itself, and how its table is filled.
#include "managers/sms_tablesource.h"

#include "ui/program_wide.h"

namespace velk {

namespace {

const Phone_List<sock_apk::SMS_RECORD> phone_list = {
    .name = "messages",
    .code = "47",
    .fetch = &sock_apk::send_command_get_sms,
    .loaded = "There are %zu message(s) on your Mobile Phone.",
    .counted = g_int_count_sms};

}  // namespace

SMS_TableSource::SMS_TableSource(Main_Window& window)
    : Table_Source(window, {.name = "SMS",
                            .status = m_LB_TIPS,
                            .may_load = g_can_click_sms_load,
                            .button = Toolbar_Section::sms,
                            .button_title = "SMS",
                            .needs_refresh = &g_table_sms_need_refresh}) {
    g_sms_tablesource = this;
    m_LB_Tel.set_text("");
    m_LB_SMS_DateTime.set_text("");
    m_table.on_selection([this] { OnTable_Selected(); });
    section.title = "Messages";
    section.empty_text = "The messages on your phone are listed here.";
    section.search_text = "Search numbers and texts";
    section.table = &m_table;
    section.detail = {.title = &m_LB_Tel,
                      .subtitle = &m_LB_SMS_DateTime,
                      .text = &m_LB_sms_content,
                      .empty_text = "Select a message to read it here."};
    set_commands({
        {.name = "OnBT_SendSMS",
         .caption = "Send",
         .icon = "send",
         .run = [this] { OnBT_SendSMS(); },
         .keys = keys_of_add},
        {.name = "OnClick_Button_Delete",
         .caption = "Delete",
         .icon = "delete",
         .run = [this] { OnClick_Button_Delete(); },
         .on_delete_key = true},
        {.name = "OnBT_SMS_DeleteAll",
         .caption = "Delete All",
         .icon = "delete_all",
         .run = [this] { OnBT_SMS_DeleteAll(); },
         .guard = &g_can_click_sms_delete_all,
         .keys = keys_of_delete_all},
        refresh_command("OnBT_Refresh", [this] { OnBT_Refresh(); }),
        {.name = "OnBT_Export_SMS",
         .caption = "Export",
         .icon = "export",
         .run = [this] { OnBT_Export_SMS(); },
         .keys = keys_of_export},
    });
}

SMS_TableSource::~SMS_TableSource() {
    g_sms_tablesource = nullptr;
}

void SMS_TableSource::OnTable_Selected() {
    selected_row = m_table.selected_row();
    const bool there = selected_row >= 0 && selected_row < table_rows.count();
    const SMS_TableSource_Column nothing;
    const SMS_TableSource_Column& row =
        there ? table_rows[static_cast<std::size_t>(selected_row)] : nothing;
    m_LB_sms_content.set_text(row.col_sms_content);
    m_LB_Tel.set_text(row.col_sms_phone_number);
    m_LB_SMS_DateTime.set_text(row.col_sms_datetime);
}

void SMS_TableSource::OnBT_Refresh() {
    if (g_can_click_sms_load) SMSLoad();
}

void SMS_TableSource::SMSLoad() {
    start_load([this] { TableView_FullData(); });
}

void SMS_TableSource::reload_after_a_change() {
    list_may_be_old();
    OnBT_Refresh();
}

void SMS_TableSource::refresh_button_sms_title() {
    show_count(table_rows.count());
}

void SMS_TableSource::TableView_FullData() {
    fill_from_phone(table_rows, m_table, phone_list, [this](const SMS_TableSource_Column& row) {
        say(format("Loading No.%s '%s'message......", row.col_no.c_str(),
                   row.col_sms_phone_number.c_str()));
    });
}

}  // namespace velk
