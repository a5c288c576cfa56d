// The tool's command line: one operation for each command that the program gives it.
#pragma once

#include <string>

namespace velk {

/// Made afresh for each operation, and stateless. Every operation runs the tool at the path given
/// first, blocks until it has ended (workers only, there is no time limit), logs the exchange, and
/// gives what the tool printed on its standard output, line breaks included. The text is empty
/// when the tool cannot be run or did not print UTF-8; how it ended counts for nothing but a pull.
///
/// `ModelID` is the phone's serial number as the tool prints it.
class ADB_Command {
  public:
    std::string get_pwd();
    std::string adb_kill_server(const std::string& tool);
    std::string get_adb_device(const std::string& tool);
    std::string get_adb_start(const std::string& tool);
    std::string get_adb_version(const std::string& tool);

    std::string Install_Apk_To_Android(const std::string& tool, const std::string& ModelID,
                                       const std::string& ApkFile);
    /// A verdict instead of the output: a failure only when the output is the bare word "Failure".
    /// The output itself goes to `printed` (when given).
    std::string Uninstall_Apk_From_Android(const std::string& tool, const std::string& ModelID,
                                           const std::string& ApkFile,
                                           std::string* printed = nullptr);
    std::string Push_File_To_Android(const std::string& tool, const std::string& ModelID,
                                     const std::string& File, const std::string& PhonePath);
    /// `cut_off` (when given) tells that a signal ended the tool, which may not have said so.
    std::string Pull_File_To_Computer(const std::string& tool, const std::string& ModelID,
                                      const std::string& PhonePath, const std::string& File,
                                      bool* cut_off = nullptr);
    std::string Broadcast_To_openUSBConnect(const std::string& tool, const std::string& ModelID);
    std::string Launch_apk_in_Phone(const std::string& tool, const std::string& ModelID,
                                    const std::string& ApkName_PhoneConnActivity);
    /// Forwards the local port `tcp1` to the phone's port `tcp2`. A verdict when the tool printed
    /// nothing, its output otherwise.
    std::string Launch_apk_in_Phone(const std::string& tool, const std::string& ModelID,
                                    const std::string& tcp1, const std::string& tcp2);
};

}  // namespace velk
