// The session's own view of adb: the tool beside the program, the phone in use, and one operation
// for each thing that is asked of the tool.
#pragma once

#include <string>

#include "ui/desktop.h"

namespace velk {

// The agent on the phone.
inline constexpr const char* g_apk_install_file = "velk.phone.android.PhoneConnActivity.apk";
inline constexpr const char* g_apk_run_name = "velk.phone.android/.PhoneConnActivity";
inline constexpr const char* g_apk_delete_name = "velk.phone.android";

/// The tool's file name, looked for in the program's own directory.
inline constexpr const char* g_adb_tool_file_path = "adb";

/// The tool's full path; empty until an attempt has worked it out. User-interface thread.
inline std::string g_adb_tool_file;

/// The directory that holds the running program's executable.
std::string executable_directory();

/// Makes a fresh ADB_Command for each operation, for the phone in use. Every operation blocks
/// until the tool has ended: workers only. The fields belong to the user-interface thread; the
/// operations read them there.
class Adb_Wrappers {
  public:
    explicit Adb_Wrappers(Desktop& desktop, std::string directory = executable_directory());

    std::string m_device_serial_number;
    std::string m_str_install_apk_file = g_apk_install_file;
    std::string m_str_apk_name_run = g_apk_run_name;
    std::string m_str_uninstall_apk_name = g_apk_delete_name;

    /// Sets g_adb_tool_file to the tool beside the program.
    void get_adb_full_path();
    /// The directory that holds the executable.
    std::string get_current_app_path();

    /// The output of "devices"; a fixed text when the tool's path is not known.
    std::string adb_devices();
    std::string adb_start();
    /// The output of "version" of the tool beside the program, also before the first attempt.
    std::string adb_version();
    std::string adb_kill_server();
    /// The verdict on removing a package.
    std::string adb_uninstall_apk(const std::string& package);
    std::string adb_install_apk(const std::string& path);
    std::string adb_run_apk(const std::string& component);
    std::string adb_broadcast();
    /// Forwards a local port to one of the phone; the verdict.
    std::string adb_mobile_phone_tcp(const std::string& tcp1, const std::string& tcp2);
    /// Forwards the four ports of the agent.
    void adb_tcp_in_mobile_phone_all();

  private:
    std::string tool_beside_the_program() const;
    struct Target {
        std::string tool;
        std::string serial;
    };
    Target target() const;

    Desktop& desktop_;
    std::string directory_;
};

}  // namespace velk
