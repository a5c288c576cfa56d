#include "session/pane_loads.h"

#include <algorithm>
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
    for (File_TableSource* const pane : panes_) pane->forget_list();
    wished_ = panes_;
    outdated_ = panes_;
    std::erase_if(outdated_, [](const auto* pane) { return !pane->is_loading(); });
    loading_ = nullptr;
    go_on();
}

void Pane_Loads::has_ended(File_TableSource* pane) {
    if (std::erase(outdated_, pane) == 0) std::erase(wished_, pane);
    if (pane == loading_) loading_ = nullptr;
    go_on();
}

void Pane_Loads::go_on() {
    // The next attempt must not be disturbed; when it ends well it wishes anew.
    if (!g_connected_adb) wished_.clear();
    while (!loading_) {
        const auto next = std::find_if(wished_.begin(), wished_.end(),
                                       [](const auto* pane) { return !pane->is_loading(); });
        if (next == wished_.end()) return;  // those that load an earlier list come back at its end
        File_TableSource* const pane = *next;
        pane->OnBT_Refresh();
        if (pane->is_loading())
            loading_ = pane;
        else
            wished_.erase(next);  // the system has no thread to give
    }
}

}  // namespace velk
