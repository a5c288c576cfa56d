// One attempt to reach a phone, from the screen's reset to the summary.
#include "agent/channel.h"
#include "base/text.h"
#include "base/trace.h"
#include "bridge/device_list.h"
#include "bridge/port_owner.h"
#include "session/main_document.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

void MainDocument::refresh_ini_ui() {
    m_LB_ps.set_text("Loading......");
    if (g_is_to_print) m_LB_ps.set_text("Loading ...");
    m_BT_SMS.set_title("SMS");
    m_BT_Contacts.set_title("Contacts");
    m_BT_Apps.set_title("Apps");
    m_BT_Music.set_title("Music");
    m_BT_Photo.set_title("Photo");
    m_BT_Video.set_title("Video");
    m_BT_Book.set_title("Book");
    set_BT_Caption_White();
    displayViewController(DEFINE_VIEW_Start);
    g_run_threading = 1;
    g_connected_adb = 0;
    m_LB_Agent.set_text("");
    m_LB_ps.set_text(g_StartDetectDevices);
}

void MainDocument::refresh_to_do_thread() {
    if (!g_can_click_refresh) return;
    g_can_click_refresh = 0;
    say_trouble("");
    thread_do_refresh();
}

void MainDocument::thread_do_refresh() {
    g_View_Start->Start_Loading_Animation();
    if (!Worker::start("connection", [this] { thread_do_refresh_function(); }))
        g_can_click_refresh = 1;
}

void MainDocument::OnBT_Refresh() {
    if (!g_can_click_refresh) return;
    trace("\nClick Refresh...\n");
    hidden_some(true);
    refresh_ini_ui();
    refresh_to_do_thread();
    Table_Records_Need_Refresh();
}

void MainDocument::add_device(const char* name) {
    m_device_checked = 1;
    m_LB_ps.set_text(format("%s %s", name, " is detected."));
    log_line("%s", m_LB_ps.text().c_str());
    trace("\nDO:add_device 1\n");
    refresh_ini_ui();
    refresh_to_do_thread();
}

void MainDocument::remove_device(const std::string& name) {
    m_device_checked = 0;
    m_LB_ps.set_text("Remove one device, It is called : " + name);
    hidden_some(true);
    refresh_ini_ui();
}

void MainDocument::look_at_port() {
    std::string trouble = trouble_with_port(agent_port);
    if (trouble.empty()) trouble = trouble_with_port(second_wire_port);
    show(m_LB_Port, trouble);
}

// Worker, from here to the end of the file: what it changes on the window is posted in order.

void MainDocument::thread_do_refresh_function() {
    get_adb_full_path();
    look_at_port();
    do_all_thing_for_thread();
    on_window([this] {
        g_can_click_refresh = 1;
        g_View_Start->Stop_Loading_Animation();
        look_for_trouble();
        if (!g_connected_adb) return;
        hidden_some(false);
        pane_loads_.start();
    });
}

void MainDocument::do_all_thing_for_thread() {
    on_window([this] {
        g_run_threading = 0;
        ++g_total_count;
        trace("Running android tool  :%d\n", g_total_count);
        if (g_is_to_print) m_LB_ps.set_text("Running android tool...");
    });
    const std::string output = [this] {
        const Busy_Note note(desktop_, busy, "Asking adb for the phone");
        return adb_devices();
    }();
    log_line("%s", output.c_str());
    on_window([this, output] { lookout_.adb_has_answered(output); });
    const std::size_t attached = attached_position(output);
    if (attached == std::string::npos) return;
    if (!lists_a_device(output, attached)) {
        no_device_is_listed();
        return;
    }
    const std::string serial = get_device_sn_id(output, attached);
    const bool usable =
        is_connected(output.substr(attached + define_adb_device_attached.size()), attached);
    log_line("\ndevice sn id:%s,connected : %d n", serial.c_str(), usable ? 1 : 0);
    if (usable)
        device_is_usable(serial);
    else
        device_is_not_usable();
}

std::string MainDocument::get_device_sn_id(const std::string& output,
                                           std::size_t attached_pos_start) {
    return velk::get_device_sn_id(output, attached_pos_start);
}

bool MainDocument::is_connected(const std::string& text, std::size_t) {
    const Device_State state = device_state(text);
    if (state == Device_State::offline || state == Device_State::unauthorized)
        on_window([state] { g_ver4_unauthorized = state == Device_State::unauthorized; });
    return state == Device_State::usable;
}

void MainDocument::no_device_is_listed() {
    show(m_LB_ps, "");
    show(m_LB_Connected, define_str_therenodevice);
    show(m_LB_SerialNumber, "");
    show_setting_phone_usb_view();
}

void MainDocument::device_is_not_usable() {
    show(m_LB_Connected, define_str_therenodevice);
    show(m_LB_SerialNumber, "");
    show(m_LB_ps, "");
    on_window([this] {
        m_LB_ps.set_text("");
        if (g_ver4_unauthorized) ++g_kill_adb_server_count;
        log_line("g_kill_adb_server_count = %d", g_kill_adb_server_count);
        if (g_ver4_unauthorized) show_allow_pc_connect_view();
    });
}

void MainDocument::device_is_usable(const std::string& serial) {
    show(m_LB_Connected, define_str_connected);
    show(m_LB_SerialNumber, serial);
    on_window([this, serial] {
        m_device_serial_number = serial;
        g_device_serial_number = serial;
    });
    adb_basic_informatin(serial);
}

}  // namespace velk
