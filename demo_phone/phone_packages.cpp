#include "demo_phone/phone_packages.h"

#include <algorithm>
#include <fstream>

namespace velk {

namespace {

using Words = std::vector<std::string>;

constexpr std::string_view success = "Success\n";

std::string failure(std::string_view reason) {
    return "Failure [" + std::string(reason) + "]\n";
}

std::string base_name(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1));
}

std::string without_end(std::string name, std::string_view end) {
    if (name.ends_with(end)) name.resize(name.size() - end.size());
    return name;
}

/// A package name made of a file name: its letters and digits, the rest as single dots.
std::string package_name(const std::string& file_name) {
    std::string package;
    for (const char character : file_name) {
        const bool fits = (character >= '0' && character <= '9') || character == '_' ||
                          (character >= 'A' && character <= 'Z') ||
                          (character >= 'a' && character <= 'z') || (character & 0x80) != 0;
        if (fits)
            package += character;
        else if (!package.empty() && package.back() != '.')
            package += '.';
    }
    package = without_end(package, ".");
    return package.find('.') == std::string::npos ? "demo.installed." + package : package;
}

/// A streamed package comes without a file name. The stand-in has the agent's name in its first
/// line, the agent's real package has an entry that no other package has.
bool names_agent(const Demo_Phone& phone, const std::string& path) {
    const auto real = phone.storage.real_path(path);
    if (!real) return false;
    std::ifstream file(*real, std::ios::binary);
    std::string line;
    if (!std::getline(file, line)) return false;
    if (line == g_agent_package) return true;
    if (!line.starts_with("PK")) return false;
    constexpr std::string_view entry = "assets/velk.phone.android.agent";
    do {
        if (line.find(entry) != std::string::npos) return true;
    } while (std::getline(file, line));
    return false;
}

Shell_Result pm_install(Demo_Phone& phone, const Words& words) {
    if (phone.behaviour.no_grants && std::find(words.begin(), words.end(), "-g") != words.end())
        return {"Error: Unknown option: -g\n", 1};
    const std::string& path = words.back();
    const std::string line = install_package(phone, path, base_name(path));
    return {line, line == success ? 0 : 1};
}

Shell_Result pm_uninstall(Demo_Phone& phone, const Words& words) {
    const std::string& package = words.back();
    bool removed = phone.store.uninstall(package);
    if (package == g_agent_package && phone.agent.installed()) {
        phone.agent.uninstall();
        removed = true;
    }
    if (removed) return {std::string(success), 0};
    return {failure("DELETE_FAILED_INTERNAL_ERROR"), 1};
}

/// The word behind an option such as "-n".
std::string option_value(const Words& words, std::string_view option) {
    const auto found = std::find(words.begin(), words.end(), option);
    return found == words.end() || found + 1 == words.end() ? "" : *(found + 1);
}

std::string describe_intent(const Words& words) {
    std::string text = "Intent {";
    const std::string action = option_value(words, "-a");
    const std::string component = option_value(words, "-n");
    if (!action.empty()) text += " act=" + action;
    if (!component.empty()) text += " cmp=" + component;
    return text + " }\n";
}

Shell_Result am_start(Demo_Phone& phone, const Words& words) {
    const std::string starting = "Starting: " + describe_intent(words);
    const std::string component = option_value(words, "-n");
    if (component == g_agent_component && phone.agent.start()) return {starting, 0};
    return {starting + "Error type 3\nError: Activity class {" + component + "} does not exist.\n",
            1};
}

Shell_Result am_broadcast(Demo_Phone& phone, const Words& words) {
    if (option_value(words, "-a") == g_agent_broadcast) phone.agent.wake();
    return {"Broadcasting: " + describe_intent(words) + "Broadcast completed: result=0\n", 0};
}

}  // namespace

std::string install_package(Demo_Phone& phone, const std::string& path, std::string_view name) {
    const Phone_File file = phone.storage.facts(path);
    if (const std::string& why = phone.behaviour.refused_install; !why.empty()) return failure(why);
    if (phone.behaviour.storage_full) return failure("INSTALL_FAILED_INSUFFICIENT_STORAGE");
    if (!file.is_file()) return failure("INSTALL_FAILED_INVALID_URI");
    if (file.size == 0) return failure("INSTALL_PARSE_FAILED_NOT_APK");
    if (name.find(g_agent_package) != std::string_view::npos || names_agent(phone, path)) {
        phone.agent.install();
        return std::string(success);
    }
    const std::string app = without_end(std::string(name), ".apk");
    phone.store.install({app, package_name(app), "1.0", "2024-06-01", file.size});
    return std::string(success);
}

Shell_Result run_pm(Demo_Phone& phone, const Words& words) {
    if (words.size() > 2 && words[1] == "install") return pm_install(phone, words);
    if (words.size() > 2 && words[1] == "uninstall") return pm_uninstall(phone, words);
    return {"usage: pm install [-r] [-g] FILE | pm uninstall PACKAGE\n", 1};
}

Shell_Result run_am(Demo_Phone& phone, const Words& words) {
    if (words.size() > 2 && words[1] == "start") return am_start(phone, words);
    if (words.size() > 2 && words[1] == "broadcast") return am_broadcast(phone, words);
    return {"usage: am start -n COMPONENT | am broadcast -a ACTION\n", 1};
}

}  // namespace velk
