#include "launcher/errands.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/text.h"
#include "bridge/child_process.h"
#include "launcher/habits.h"

namespace velk {

namespace {

using Words = std::vector<std::string>;

void print(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

Words with_tool(const std::string& tool, Words words) {
    words.insert(words.begin(), tool);
    return words;
}

/// Runs the tool and keeps quiet about it; `said` is all that it wrote.
int ask_tool(const std::string& tool, const Words& words, std::string& said) {
    return run_child({.words = with_tool(tool, words), .captures_errors = true},
                     [&](std::string_view piece) { said += piece; });
}

/// What is captured goes to standard error as it comes, and when the tool fails to standard output
/// too: the program reads nothing else. It reads only UTF-8, and a message names files.
int run_and_repeat_a_failure(Child_Command command) {
    command.shares_input = true;
    command.captures_errors = true;
    std::string said;
    const int status = run_child(command, [&](std::string_view piece) {
        print(stderr, piece);
        said += piece;
    });
    if (status != 0) print(stdout, as_utf8(said));
    return status;
}

int run_plainly(const std::string& tool, const Command_Line& call) {
    return run_and_repeat_a_failure(
        {.words = with_tool(tool, call.words()), .captures_output = false});
}

int run_devices(const std::string& tool, const Command_Line& call) {
    std::string list;
    const int status = run_child({.words = with_tool(tool, call.words()), .shares_input = true},
                                 [&](std::string_view piece) { list += piece; });
    print(stdout, older_device_list(list));
    return status;
}

int run_pull(const std::string& tool, const Command_Line& call) {
    Words words{"pull", "-a"};  // the file keeps its date
    words.insert(words.end(), call.arguments.begin(), call.arguments.end());
    // The output is captured too: only a failure may be heard there.
    return run_and_repeat_a_failure({.words = with_tool(tool, call.with(words))});
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

[[noreturn]] void become_the_tool(const std::string& tool, const Command_Line& call) {
    Words words = with_tool(tool, call.words());
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(tool.c_str(), arguments.data());
    std::perror(tool.c_str());
    std::exit(status_of_a_missing_program);
}

struct Errand {
    std::string_view command;
    int (*run)(const std::string& tool, const Command_Line& call);
};

constexpr std::array errands{
    Errand{"devices", run_devices},     Errand{"pull", run_pull},       Errand{"push", run_push},
    Errand{"uninstall", run_uninstall}, Errand{"install", run_plainly},
};

}  // namespace

int run_errand(const std::string& tool, const Command_Line& call) {
    for (const Errand& errand : errands)
        if (errand.command == call.command) return errand.run(tool, call);
    become_the_tool(tool, call);
}

int run_without_a_tool(const Command_Line& call, const std::string& advice) {
    print(stderr, advice);
    // A copy counts as done when nothing is printed.
    if (call.command == "pull") print(stdout, advice);
    return status_of_a_missing_program;
}

}  // namespace velk
