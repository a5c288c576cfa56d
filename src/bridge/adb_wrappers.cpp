#include "bridge/adb_wrappers.h"

#include <filesystem>
#include <utility>

#include "base/trace.h"
#include "bridge/adb_command.h"

namespace velk {

namespace {

/// The agent's ports, here and on the phone. Requests use the first pair alone.
constexpr std::pair<const char*, const char*> ports[] = {
    {"12300", "12186"}, {"12301", "12176"}, {"12302", "12166"}, {"12303", "12156"}};

std::string traced(std::string result) {
    log_line("%s", result.c_str());
    return result;
}

}  // namespace

std::string executable_directory() {
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/self/exe", failed).parent_path().string();
}

Adb_Wrappers::Adb_Wrappers(Desktop& desktop, std::string directory)
    : desktop_(desktop), directory_(std::move(directory)) {}

Adb_Wrappers::Target Adb_Wrappers::target() const {
    return desktop_.ask([this] { return Target{g_adb_tool_file, m_device_serial_number}; });
}

std::string Adb_Wrappers::tool_beside_the_program() const {
    return directory_ + "/" + g_adb_tool_file_path;
}

void Adb_Wrappers::get_adb_full_path() {
    const std::string tool = tool_beside_the_program();
    log_line("g_adb_tool_file: %s", tool.c_str());
    desktop_.perform([tool] { g_adb_tool_file = tool; });
}

std::string Adb_Wrappers::get_current_app_path() {
    return traced(directory_);
}

std::string Adb_Wrappers::adb_devices() {
    const std::string tool = target().tool;
    if (tool.empty()) return traced("[g_adb_tool_file length<=0]");
    ADB_Command().get_pwd();
    return traced(ADB_Command().get_adb_device(tool));
}

std::string Adb_Wrappers::adb_start() {
    const std::string tool = target().tool;
    ADB_Command().get_pwd();
    return traced(ADB_Command().get_adb_start(tool));
}

std::string Adb_Wrappers::adb_version() {
    return traced(ADB_Command().get_adb_version(tool_beside_the_program()));
}

std::string Adb_Wrappers::adb_kill_server() {
    return traced(ADB_Command().adb_kill_server(target().tool));
}

std::string Adb_Wrappers::adb_uninstall_apk(const std::string& package) {
    const Target use = target();
    return traced(ADB_Command().Uninstall_Apk_From_Android(use.tool, use.serial, package));
}

std::string Adb_Wrappers::adb_install_apk(const std::string& path) {
    const Target use = target();
    log_line("%s", path.c_str());
    return traced(ADB_Command().Install_Apk_To_Android(use.tool, use.serial, path));
}

std::string Adb_Wrappers::adb_run_apk(const std::string& component) {
    const Target use = target();
    return traced(ADB_Command().Launch_apk_in_Phone(use.tool, use.serial, component));
}

std::string Adb_Wrappers::adb_broadcast() {
    const Target use = target();
    return traced(ADB_Command().Broadcast_To_openUSBConnect(use.tool, use.serial));
}

std::string Adb_Wrappers::adb_mobile_phone_tcp(const std::string& tcp1, const std::string& tcp2) {
    const Target use = target();
    return traced(ADB_Command().Launch_apk_in_Phone(use.tool, use.serial, tcp1, tcp2));
}

void Adb_Wrappers::adb_tcp_in_mobile_phone_all() {
    for (const auto& [local, phone] : ports) adb_mobile_phone_tcp(local, phone);
}

}  // namespace velk
