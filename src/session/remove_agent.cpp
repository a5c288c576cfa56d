// Taking the agent off the phone, for a person who wants nothing of Velk to stay there.
#include "agent/wire_choice.h"
#include "base/text.h"
#include "base/trace.h"
#include "bridge/adb_command.h"
#include "managers/phone_tool.h"
#include "session/main_document.h"
#include "ui/guarded_worker.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr const char* question =
    "Remove Velk's application from the phone? Your data on the phone stays as it is. The next "
    "connection installs the application again.";
constexpr const char* removed = "Velk's application is no longer on the phone.";

}  // namespace

void MainDocument::OnMenu_RemoveAgent() {
    desktop_.open_alert(yes_or_no(question), [this, phone = g_device_serial_number](int button) {
        if (button != yes) return;
        run_command(desktop_, "remove agent", [this, phone] { remove_agent(phone); });
    });
}

void MainDocument::remove_agent(const std::string& phone) {
    std::string printed;
    {
        const Busy_Note note(desktop_, busy, "Removing Velk from the phone");
        const Phone_Tool tool = phone_tool(desktop_);
        if (tool.serial != phone) return show_message(another_phone);
        ADB_Command().Uninstall_Apk_From_Android(tool.path, tool.serial, g_apk_delete_name,
                                                 &printed);
    }
    const std::string answer = last_line(printed);
    if (answer != all_went_well)
        return show_message(format("Velk's application could not be removed from the phone: %s",
                                   answer.empty() ? "adb does not say why." : answer.c_str()));
    on_window([this] {
        use_first_wire();
        hidden_some(true);
        refresh_ini_ui();
        m_LB_ps.set_text(removed);
    });
    show_message(removed);
}

}  // namespace velk
