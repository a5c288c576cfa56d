#include "launcher/agent_errands.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>
#include <vector>

#include "base/text.h"
#include "launcher/own_agent.h"
#include "launcher/run_tool.h"

namespace velk {

namespace {

using Words = std::vector<std::string>;

constexpr std::chrono::milliseconds time_for_our_agent_to_start{3000};
constexpr std::chrono::milliseconds pause_between_questions{150};

/// A phone that has not answered by then will not; the person is waiting.
constexpr std::chrono::milliseconds time_for_one_answer{4000};

/// The package that the program installs.
std::string package_beside_the_launcher() {
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error);
    return (own.parent_path() / "velk.phone.android.PhoneConnActivity.apk").string();
}

/// Only this file is installed with all permissions: another package with the same content is not.
bool is_beside_the_launcher(const std::string& package) {
    std::error_code error;
    return std::filesystem::equivalent(package, package_beside_the_launcher(), error) && !error;
}

Phone_Socket ask_for_socket(const std::string& tool, const Command_Line& call,
                            std::string_view socket) {
    std::string list;
    ask_tool_within(time_for_one_answer, tool, call.with({"shell", "cat", "/proc/net/unix"}), list);
    return look_for_socket(list, socket);
}

/// Whether the agent on the phone is to be reached through this socket. Our own one may still be
/// starting. Some phones show nobody the list; then the package says what was installed.
bool agent_has_socket(const std::string& tool, const Command_Line& call, std::string_view socket) {
    using Clock = std::chrono::steady_clock;
    const bool ours = is_own_agent(package_beside_the_launcher());
    const auto latest = Clock::now() + time_for_our_agent_to_start;
    Phone_Socket found = ask_for_socket(tool, call, socket);
    while (ours && found == Phone_Socket::missing && Clock::now() < latest) {
        std::this_thread::sleep_for(pause_between_questions);
        found = ask_for_socket(tool, call, socket);
    }
    return found == Phone_Socket::there || (ours && found == Phone_Socket::unknown);
}

/// What installing cannot grant. Not every phone knows all of these, and the agent tells the
/// program what it may not do in the end, so a failure is not reported.
void grant_the_rest(const std::string& tool, const Command_Line& call) {
    const std::string agent(name_of_our_agent);
    const std::array<Words, 5> grants{{
        {"appops", "set", agent, "WRITE_SMS", "allow"},
        {"appops", "set", agent, "LEGACY_STORAGE", "allow"},
        {"appops", "set", agent, "RUN_IN_BACKGROUND", "allow"},
        {"appops", "set", agent, "RUN_ANY_IN_BACKGROUND", "allow"},
        {"dumpsys", "deviceidle", "whitelist", "+" + agent},  // battery saving leaves it alone
    }};
    for (Words words : grants) {
        words.insert(words.begin(), "shell");
        std::string unused;
        const int status = ask_tool_within(time_for_one_answer, tool, call.with(words), unused);
        if (status == status_of_an_ended_tool) return;  // nor will it answer the next one
    }
}

int install_our_agent(const std::string& tool, const Command_Line& call) {
    std::string said;
    int status = ask_tool(tool, call.with({"install", "-r", "-g", call.arguments.back()}), said);
    if (refuses_to_grant(said)) {
        said.clear();
        status = ask_tool(tool, call.words(), said);
    }
    print(stdout, as_utf8(said));
    if (status != 0) print(stderr, said);
    if (status == 0 && says_installed(said)) grant_the_rest(tool, call);
    return status;
}

}  // namespace

int run_forward(const std::string& tool, const Command_Line& call) {
    Command_Line changed = call;
    // With more words it is another kind of forward.
    if (call.arguments.size() == 2 && call.arguments[0].starts_with("tcp:")) {
        const std::string_view socket = socket_instead_of(call.arguments[1]);
        if (!socket.empty() && agent_has_socket(tool, call, socket))
            changed.arguments[1] = "localabstract:" + std::string(socket);
    }
    become_the_tool(tool, changed);
}

int run_install(const std::string& tool, const Command_Line& call) {
    const bool replaces = call.arguments.size() == 2 && call.arguments[0] == "-r";
    if (replaces && is_beside_the_launcher(call.arguments[1]) && is_own_agent(call.arguments[1]))
        return install_our_agent(tool, call);
    return run_plainly(tool, call);
}

}  // namespace velk
