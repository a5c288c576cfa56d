#include "launcher/real_tool.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <vector>

namespace velk {

namespace {

constexpr const char* chosen_tool = "VELK_ADB";

/// The launchers that a command has come through, by file, so that two copies of this program on
/// the search path do not run each other for ever.
constexpr const char* launchers = "VELK_ADB_LAUNCHERS";

/// What a variable of the environment holds; nothing when it is empty or missing.
std::optional<std::string> environment(const char* name) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') return {};
    return value;
}

/// A file by its device and number, as the list of launchers writes it.
std::string identity(const struct stat& file) {
    return std::to_string(file.st_dev) + "/" + std::to_string(file.st_ino) + ";";
}

/// The list with this program in it, put into the environment for the tool.
const std::string& launchers_so_far() {
    static const std::string all = [] {
        std::string list = environment(launchers).value_or("");
        struct stat own {};
        if (::stat("/proc/self/exe", &own) == 0) list += identity(own);
        ::setenv(launchers, list.c_str(), 1);
        return list;
    }();
    return all;
}

bool is_a_launcher(const struct stat& file) {
    return (";" + launchers_so_far()).find(";" + identity(file)) != std::string::npos;
}

bool is_a_real_tool(const std::string& path) {
    struct stat file {};
    return ::stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) &&
           ::access(path.c_str(), X_OK) == 0 && !is_a_launcher(file);
}

std::vector<std::string> folders_to_look_in() {
    std::vector<std::string> folders;
    std::istringstream search_path(environment("PATH").value_or(""));
    for (std::string folder; std::getline(search_path, folder, ':');)
        if (!folder.empty()) folders.push_back(folder);

    for (const char* const sdk : {"ANDROID_HOME", "ANDROID_SDK_ROOT"})
        if (const auto folder = environment(sdk)) folders.push_back(*folder + "/platform-tools");
    if (const auto home = environment("HOME"))
        folders.push_back(*home + "/Android/Sdk/platform-tools");
    folders.push_back("/usr/lib/android-sdk/platform-tools");
    return folders;
}

}  // namespace

std::string find_real_tool() {
    if (const auto chosen = environment(chosen_tool))
        return is_a_real_tool(*chosen) ? *chosen : std::string();
    for (const std::string& folder : folders_to_look_in())
        if (const std::string tool = folder + "/adb"; is_a_real_tool(tool)) return tool;
    return {};
}

std::string advice_without_a_tool() {
    if (const auto chosen = environment(chosen_tool))
        return "adb: VELK_ADB names \"" + *chosen +
               "\", which is no program that can be run; name the Android Debug Bridge there, or "
               "unset VELK_ADB and install the package \"adb\"\n";
    return "adb: the Android Debug Bridge is not installed; install the package \"adb\" "
           "(apt install adb), or set VELK_ADB to the tool's full path\n";
}

}  // namespace velk
