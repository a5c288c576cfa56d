// Putting the agent on the phone and waking it. Worker.
#include <array>

#include "agent/channel.h"
#include "agent/wire_choice.h"
#include "base/trace.h"
#include "bridge/install_result.h"
#include "bridge/port_owner.h"
#include "managers/phone_tool.h"
#include "session/main_document.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

// For a developer who wants the agent left as it is on the phone.
constexpr Flag g_b_debug_del_all_apk_installapk = 0;
constexpr Flag g_b_debug_del_apk_installapk = 0;

/// Agents of sibling products, which listen on the same ports, and this one's own, so that every
/// connection starts from a fresh install.
constexpr std::array agent_packages = {"tarn.phone.android", "prell.phone.android",
                                       "dusk.phone.android", g_apk_delete_name,
                                       "quen.phone.android", "fenn.phone.android"};

}  // namespace

void MainDocument::adb_basic_informatin(const std::string&) {
    Busy_Note note(desktop_, busy, "Removing earlier agents from the phone");
    const std::string directory = get_current_app_path();
    if (!g_b_debug_del_all_apk_installapk)
        for (const char* package : agent_packages) {
            if (desktop_.closing()) return;
            adb_uninstall_apk(package);
        }

    note.say("Installing the agent on the phone");
    std::string trouble;
    if (!g_b_debug_del_apk_installapk) {
        const auto file = desktop_.ask([this] { return m_str_install_apk_file; });
        const std::string result = adb_install_apk(directory + "/" + file);
        log_line("%s", result.c_str());
        trouble = why_install_failed(result);
        if (trouble.empty()) trouble = failure_in(result);
    }
    show(m_LB_ps, "Launching the application on your phone...");

    if (desktop_.closing()) return;
    note.say("Starting the agent on the phone");
    adb_run_apk(desktop_.ask([this] { return m_str_apk_name_run; }));
    show(m_LB_ps, "Start communicating ...");
    adb_broadcast();
    adb_tcp_in_mobile_phone_all();
    // A forward that could not be made leaves the port to somebody who is not the agent.
    if (trouble_with_port(second_wire_port).empty())
        choose_wire();
    else
        use_first_wire();
    if (trouble.empty()) trouble = missing_rights(agent_hello());
    if (!trouble.empty()) show(m_LB_Agent, trouble);

    if (desktop_.closing()) return;
    show(m_LB_ps, "Retrieving mobile phone basic information.");
    get_mobile_basic_information(note);
    on_window([this] {
        m_LB_ps.set_text(m_LB_MobileName.text() + " " + " is connected.");
        g_connected_adb = 1;
    });
}

}  // namespace velk
