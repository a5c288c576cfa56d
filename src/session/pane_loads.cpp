#include "session/pane_loads.h"

#include <utility>

#include "managers/file_tablesource.h"
#include "ui/program_wide.h"

namespace velk {

void Pane_Loads::take(std::vector<File_TableSource*> panes) {
    panes_ = std::move(panes);
    for (File_TableSource* const pane : panes_)
        pane->load_ended = [this, pane] { has_ended(pane); };
}

void Pane_Loads::start() {
    wished_.assign(panes_.begin(), panes_.end());
    first_has_started_ = false;
    go_on();
}

void Pane_Loads::has_ended(const File_TableSource* pane) {
    if (wished_.empty() || wished_.front() != pane) return;
    if (std::exchange(first_has_started_, false)) wished_.pop_front();
    go_on();
}

void Pane_Loads::go_on() {
    // The next attempt must not be disturbed; when it ends well it wishes anew.
    if (!g_connected_adb) wished_.clear();
    while (!wished_.empty()) {
        File_TableSource* const pane = wished_.front();
        if (pane->is_loading()) return;  // its end comes back here
        pane->OnBT_Refresh();
        first_has_started_ = pane->is_loading();
        if (first_has_started_) return;
        wished_.pop_front();  // the system has no thread to give
    }
}

}  // namespace velk
