#include "launcher/errands.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

#include "base/text.h"
#include "bridge/child_process.h"
#include "launcher/agent_errands.h"
#include "launcher/habits.h"
#include "launcher/run_tool.h"

namespace velk {

namespace {

using Words = std::vector<std::string>;

constexpr std::chrono::milliseconds time_for_a_new_phone{3000};
constexpr std::chrono::milliseconds pause_between_looks{250};

int ask_for_devices(const std::string& tool, const Command_Line& call, std::string& said) {
    said.clear();
    return run_child(
        {.words = with_tool(tool, call.words()), .shares_input = true, .captures_errors = true},
        [&](std::string_view piece) { said += piece; });
}

/// The tool's server looks at the bus about once a second, and is told here and there not to.
bool meets_phones_of_the_bus() {
    const char* const usb = std::getenv("ADB_USB");
    return (!usb || std::string_view(usb) != "0") && debugging_is_on_the_bus();
}

int run_devices(const std::string& tool, const Command_Line& call) {
    using Clock = std::chrono::steady_clock;
    const auto latest = Clock::now() + time_for_a_new_phone;
    std::string said;
    int status = ask_for_devices(tool, call, said);
    while (status == 0 && may_not_have_met_the_phone(said) && Clock::now() < latest &&
           meets_phones_of_the_bus()) {
        std::this_thread::sleep_for(pause_between_looks);
        status = ask_for_devices(tool, call, said);
    }
    const std::size_t list = start_of_device_list(said);
    const std::string complaints = said.substr(0, list);
    print(stderr, complaints);
    print(stdout, version_complaint(complaints) + older_device_list(said.substr(list)));
    return status;
}

/// A pull, of which all output is kept: only a failure may be heard on standard output.
int pull(const std::string& tool, const Command_Line& call, Words words, std::string& said) {
    words.insert(words.end(), call.arguments.begin(), call.arguments.end());
    return run_and_listen({.words = with_tool(tool, call.with(words))}, said);
}

int run_pull(const std::string& tool, const Command_Line& call) {
    std::string said;
    int status = pull(tool, call, {"pull", "-a"}, said);  // the file keeps its date
    // On a disk that keeps no dates the tool fails behind a whole copy, and does not say why.
    if (status != 0 && has_line_that_begins(said, "[100%]") &&
        !has_line_that_begins(said, "adb: error:")) {
        said.clear();
        status = pull(tool, call, {"pull"}, said);
    }
    // A tool that was killed has left half a copy, which would count as done.
    if (said.empty()) said = format("adb: pull ended with status %d\n", status);
    return repeat_a_failure(status, said);
}

int run_push(const std::string& tool, const Command_Line& call) {
    const bool has_a_target = call.arguments.size() >= 2;
    if (has_a_target && means_a_folder(call.arguments.back())) {
        // Into a folder that is missing the tool would write a file of the folder's name. Should
        // this fail, the push itself says why.
        std::string unused;
        ask_tool(tool,
                 call.with({"shell", "mkdir", "-p", quoted_for_the_phone(call.arguments.back())}),
                 unused);
    }
    return run_plainly(tool, call);
}

int run_uninstall(const std::string& tool, const Command_Line& call) {
    // The tool would wait for ever for a phone that is gone.
    std::string answer;
    if (ask_tool(tool, call.with({"get-state"}), answer) != 0) {
        print(stderr, answer);
        print(stdout, answer);
        return 1;
    }
    return run_plainly(tool, call);
}

struct Errand {
    std::string_view command;
    int (*run)(const std::string& tool, const Command_Line& call);
};

constexpr std::array errands{
    Errand{"devices", run_devices}, Errand{"pull", run_pull},
    Errand{"push", run_push},       Errand{"uninstall", run_uninstall},
    Errand{"install", run_install}, Errand{"forward", run_forward},
};

}  // namespace

int run_errand(const std::string& tool, const Command_Line& call) {
    for (const Errand& errand : errands)
        if (errand.command == call.command) return errand.run(tool, call);
    become_the_tool(tool, call);
}

int run_without_a_tool(const Command_Line& call, const std::string& advice) {
    print(stderr, advice);
    // The program reads nothing else; a copy would even count as done when nothing is printed.
    for (const std::string_view command : {"pull", "push", "install", "uninstall"})
        if (call.command == command) print(stdout, advice);
    return status_of_a_missing_program;
}

}  // namespace velk
