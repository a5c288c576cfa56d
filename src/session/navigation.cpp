// Which view the window shows, and when a section's button does anything.
#include "base/trace.h"
#include "managers/app_tablesource.h"
#include "managers/contacts_tablesource.h"
#include "managers/sms_tablesource.h"
#include "session/main_document.h"
#include "ui/program_wide.h"

namespace velk {

void MainDocument::displayViewController(MainViewController* view) {
    on_window([this, view] {
        m_Control_Box1.set_hidden(false);
        if (!desktop_.end_editing()) {
            desktop_.beep();
            return;
        }
        if (view == nullptr) {
            m_Control_Box1.set_hidden(true);
            return;
        }
        view->load_once();
        m_Control_Box1.set_hidden(false);
        m_Control_Box1.put_in(nullptr);
        m_Control_Box1.put_in(view);
    });
}

void MainDocument::displayViewController(int id) {
    displayViewController(m_views.at(static_cast<std::size_t>(id)).get());
}

void MainDocument::hidden_some(bool hidden) {
    on_window([this, hidden] {
        for (Outlet* control : summary_controls()) control->set_hidden(hidden);
    });
}

void MainDocument::set_BT_Caption_White() {
    on_window([this] {
        if (!b_is_white_ToolBar_ButtonCaption) return;
        for (Button* button : {&m_BT_MyAndroid, &m_BT_Contacts, &m_BT_SMS, &m_BT_Apps, &m_BT_Photo,
                               &m_BT_Video, &m_BT_Music, &m_BT_Book})
            setButtonColor(*button, m_color_toolbar_button);
    });
}

void MainDocument::setButtonColor(Button& button, Colour colour) {
    button.set_colour(colour);
}

void MainDocument::show_allow_pc_connect_view() {
    show_trouble(DEFINE_VIEW_AllowPCConnect);
}

void MainDocument::show_setting_phone_usb_view() {
    show_trouble(DEFINE_VIEW_SettingPhoneUSB);
}

void MainDocument::show_trouble(int id) {
    on_window([this, id] {
        m_BT_SMS.set_title("SMS");
        m_BT_Contacts.set_title("Contacts");
        set_BT_Caption_White();
        displayViewController(id);
    });
}

void MainDocument::Table_Records_Need_Refresh() {
    g_table_contacts_need_refresh = 1;
    g_table_sms_need_refresh = 1;
    g_table_app_need_refresh = 1;
}

bool MainDocument::may_show_media() const {
    return g_can_click_refresh && g_connected_adb;
}

// A running contacts or messages job keeps the person in its section, but for the media ones.
bool MainDocument::may_leave_the_section() const {
    return g_can_click_contacts_import && g_can_click_contacts_load && g_can_click_sms_load &&
           may_show_media();
}

void MainDocument::show_section(int id) {
    hidden_some(true);
    displayViewController(id);
}

void MainDocument::OnBT_MyAndroid() {
    if (!may_leave_the_section()) return;
    hidden_some(false);
    m_Control_Box1.put_in(nullptr);
}

void MainDocument::OnBT_Contacts() {
    if (!may_leave_the_section()) return;
    show_section(DEFINE_VIEW_Contacts);
    if (!g_table_contacts_need_refresh) return;
    g_table_contacts_need_refresh = 0;
    g_contacts_tablesource->OnBT_Contacts_Refresh();
    set_BT_Caption_White();
}

void MainDocument::OnBT_SMS() {
    if (!may_leave_the_section()) return;
    show_section(DEFINE_VIEW_SMS);
    if (!g_table_sms_need_refresh) return;
    g_table_sms_need_refresh = 0;
    for (Label* label : {&g_sms_tablesource->m_LB_Tel, &g_sms_tablesource->m_LB_SMS_DateTime,
                         &g_sms_tablesource->m_LB_sms_content})
        label->set_text("");
    g_sms_tablesource->OnBT_Refresh();
    set_BT_Caption_White();
}

void MainDocument::OnBT_App() {
    if (!may_leave_the_section()) return;
    show_section(DEFINE_VIEW_App);
    if (!g_table_app_need_refresh) return;
    g_table_app_need_refresh = 0;
    g_app_tablesource->OnBT_Refresh();
    set_BT_Caption_White();
}

void MainDocument::OnBT_Music() {
    if (may_show_media()) show_section(DEFINE_VIEW_Music);
}

void MainDocument::OnBT_Photo() {
    if (may_show_media()) show_section(DEFINE_VIEW_Photo);
}

void MainDocument::OnBT_Video() {
    if (may_show_media()) show_section(DEFINE_VIEW_Video);
}

void MainDocument::OnBT_Book() {
    if (may_show_media()) show_section(DEFINE_VIEW_Book);
}

}  // namespace velk
