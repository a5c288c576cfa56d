#include "launcher/run_tool.h"

#include <unistd.h>

#include <cstdlib>
#include <thread>

#include "base/interruptor.h"
#include "base/text.h"

namespace velk {

using Words = std::vector<std::string>;

void print(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

Words with_tool(const std::string& tool, Words words) {
    words.insert(words.begin(), tool);
    return words;
}

int ask_tool(const std::string& tool, const Words& words, std::string& said) {
    return run_child({.words = with_tool(tool, words), .captures_errors = true},
                     [&](std::string_view piece) { said += piece; });
}

int ask_tool_within(std::chrono::milliseconds limit, const std::string& tool, const Words& words,
                    std::string& said) {
    Interruptor tool_ends;
    Interruptor watch_ends;
    std::thread watch([&] {
        if (watch_ends.sleep_for(limit)) tool_ends.cancel();
    });
    const Interruptor::Use use(tool_ends);
    const int status = ask_tool(tool, words, said);
    watch_ends.cancel();
    watch.join();
    return status;
}

int run_and_listen(Child_Command command, std::string& said) {
    command.shares_input = true;
    command.captures_errors = true;
    return run_child(command, [&](std::string_view piece) {
        print(stderr, piece);
        said += piece;
    });
}

int repeat_a_failure(int status, const std::string& said) {
    if (status != 0) print(stdout, as_utf8(said));
    return status;
}

int run_plainly(const std::string& tool, const Command_Line& call) {
    std::string said;
    const int status =
        run_and_listen({.words = with_tool(tool, call.words()), .captures_output = false}, said);
    return repeat_a_failure(status, said);
}

void become_the_tool(const std::string& tool, const Command_Line& call) {
    Words words = with_tool(tool, call.words());
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(tool.c_str(), arguments.data());
    std::perror(tool.c_str());
    std::exit(status_of_a_missing_program);
}

}  // namespace velk
