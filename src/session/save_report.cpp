// Help for those who look for a bug: a file that a person can send them.
#include "base/text.h"
#include "base/trace.h"
#include "managers/save_page.h"
#include "session/main_document.h"
#include "session/report.h"
#include "ui/guarded_worker.h"

namespace velk {

void MainDocument::save_report(const std::string& toolkit, const std::string& system) {
    run_command(desktop_, "save report", [this, facts = Report_Facts{toolkit, system}]() mutable {
        const std::string path = choose_save_path(desktop_, "Save report", "txt");
        if (path.empty()) return;
        const Busy_Note note(desktop_, busy, "Saving the report");
        const std::string package = desktop_.ask([this] { return m_str_install_apk_file; });
        facts.masked_trace = masked_trace();  // before what the report itself traces
        facts.adb_version = adb_version();
        facts.trouble = lookout_.facts_now(package);
        const std::string reason = save_text(desktop_, path, report_text(facts), Readers::owner);
        if (reason.empty())
            show(m_LB_ps, format("Successed to save '%s'!", path.c_str()));
        else
            show_message(format("The report could not be saved as \"%s\": %s.", path.c_str(),
                                reason.c_str()));
    });
}

}  // namespace velk
