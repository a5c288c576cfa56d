#include "managers/quiet_line.h"

#include <utility>

#include "base/text.h"
#include "ui/program_wide.h"

namespace velk {

void Quiet_Line::show(std::string& part, std::string text) {
    part = std::move(text);
    const std::string between = reason_.empty() || remark_.empty() ? "" : " ";
    m_LB_Quiet.set_text(reason_ + between + remark_);
}

std::string words_of_failures(std::size_t failed, std::size_t all, const std::string& reason) {
    if (failed == 0 || all == 1) return reason;
    const std::string count = format("%zu of %zu failed", failed, all);
    return count + (reason.empty() ? "." : ": " + reason);
}

std::string remark_on_list(bool is_old, int counted, std::size_t came) {
    if (is_old) return list_is_old;
    if (g_phone_was_changed || counted <= 0 || came >= static_cast<std::size_t>(counted)) return "";
    return format("The phone counts %d, but %zu came. Refresh tries again.", counted, came);
}

}  // namespace velk
