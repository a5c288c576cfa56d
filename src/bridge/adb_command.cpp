#include "bridge/adb_command.h"

#include <utility>
#include <vector>

#include "base/text.h"
#include "base/trace.h"
#include "bridge/child_process.h"

namespace velk {

namespace {

using Words = std::vector<std::string>;

std::string output_of(Words words, int* status = nullptr) {
    std::string output;
    const int ended =
        run_child({.words = std::move(words)}, [&](std::string_view piece) { output += piece; });
    if (status) *status = ended;
    return is_utf8(output) ? output : std::string();
}

std::string output_on_device(const std::string& tool, const std::string& serial,
                             const Words& command, int* status = nullptr) {
    Words words{tool, "-s", serial};
    words.insert(words.end(), command.begin(), command.end());
    return output_of(std::move(words), status);
}

std::string logged(std::string output) {
    log_line("get:[%s]", output.c_str());
    return output;
}

}  // namespace

std::string ADB_Command::get_pwd() {
    return output_of({"/bin/pwd"});
}

std::string ADB_Command::adb_kill_server(const std::string& tool) {
    return logged(output_of({tool, "kill-server"}));
}

std::string ADB_Command::get_adb_device(const std::string& tool) {
    return output_of({tool, "devices"});
}

std::string ADB_Command::get_adb_start(const std::string& tool) {
    return output_of({tool, "start-server"});
}

std::string ADB_Command::get_adb_version(const std::string& tool) {
    return logged(output_of({tool, "version"}));
}

std::string ADB_Command::Install_Apk_To_Android(const std::string& tool, const std::string& ModelID,
                                                const std::string& ApkFile) {
    return logged(output_on_device(tool, ModelID, {"install", "-r", ApkFile}));
}

std::string ADB_Command::Uninstall_Apk_From_Android(const std::string& tool,
                                                    const std::string& ModelID,
                                                    const std::string& ApkFile,
                                                    std::string* printed) {
    const std::string output = output_on_device(tool, ModelID, {"uninstall", ApkFile});
    if (printed) *printed = output;
    log_line("Uninstall:'%s' :: [%s]", ApkFile.c_str(), output.c_str());
    // The whole output on purpose: the tool adds a line break and often a reason, and an agent
    // that was not there to be removed is no failure to speak of.
    const char* const verdict =
        output == "Failure" ? "[Failure!] Uninstall APK:'%s'." : "[Success!] Uninstall APK:'%s'.";
    return format(verdict, ApkFile.c_str());
}

std::string ADB_Command::Push_File_To_Android(const std::string& tool, const std::string& ModelID,
                                              const std::string& File,
                                              const std::string& PhonePath) {
    return logged(output_on_device(tool, ModelID, {"push", File, PhonePath}));
}

std::string ADB_Command::Pull_File_To_Computer(const std::string& tool, const std::string& ModelID,
                                               const std::string& PhonePath,
                                               const std::string& File, bool* cut_off) {
    int status = 0;
    std::string output =
        logged(output_on_device(tool, ModelID, {"pull", PhonePath, File}, &status));
    if (cut_off) *cut_off = status >= status_of_the_first_signal;
    return output;
}

std::string ADB_Command::Broadcast_To_openUSBConnect(const std::string& tool,
                                                     const std::string& ModelID) {
    return logged(
        output_on_device(tool, ModelID, {"shell", "am", "broadcast", "-a", "openUSBConnect"}));
}

std::string ADB_Command::Launch_apk_in_Phone(const std::string& tool, const std::string& ModelID,
                                             const std::string& ApkName_PhoneConnActivity) {
    // The agent listens to this action, capital letter included.
    return logged(output_on_device(tool, ModelID,
                                   {"shell", "am", "start", "-a", "android.intent.action.Main",
                                    "-n", ApkName_PhoneConnActivity}));
}

std::string ADB_Command::Launch_apk_in_Phone(const std::string& tool, const std::string& ModelID,
                                             const std::string& tcp1, const std::string& tcp2) {
    const std::string output =
        output_on_device(tool, ModelID, {"forward", "tcp:" + tcp1, "tcp:" + tcp2});
    log_line("Return:\n%s", output.c_str());
    if (!output.empty()) return output;
    return format("[OK!] adb -s %s forward tcp:%s tcp:%s successfully!\n", ModelID.c_str(),
                  tcp1.c_str(), tcp2.c_str());
}

}  // namespace velk
