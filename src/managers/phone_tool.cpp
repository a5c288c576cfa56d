#include "managers/phone_tool.h"

#include <algorithm>
#include <array>

#include "base/trace.h"
#include "bridge/adb_wrappers.h"
#include "ui/program_wide.h"

namespace velk {

void Phone_Tool::log_with(const std::string& file) const {
    log_line("\ng_adb_tool_file=%s,\ng_device_serial_number=%s,\ninstall_apk_file=%s\n",
             path.c_str(), serial.c_str(), file.c_str());
}

Phone_Tool phone_tool(Desktop& desktop) {
    return desktop.ask([] { return Phone_Tool{g_adb_tool_file, g_device_serial_number}; });
}

std::string phone_in_use(Desktop& desktop) {
    return desktop.ask([] { return g_device_serial_number; });
}

std::string last_line(const std::string& printed) {
    constexpr const char* line_ends = "\r\n";
    const std::size_t last = printed.find_last_not_of(line_ends);
    if (last == std::string::npos) return "";
    const std::size_t before = printed.find_last_of(line_ends, last);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    return printed.substr(start, last + 1 - start);
}

std::string failure_in(const std::string& printed) {
    constexpr std::array starts = {"adb:", "Failure", "error"};
    std::string line = last_line(printed);
    const bool tells = std::any_of(starts.begin(), starts.end(),
                                   [&](const char* start) { return line.starts_with(start); });
    // A file that has been pushed may be called so.
    const bool holds =
        line.find("failed") != std::string::npos && line.find(" pushed") == std::string::npos;
    return tells || holds ? line : "";
}

}  // namespace velk
