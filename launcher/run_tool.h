// The ways in which the launcher runs the real tool.
#pragma once

#include <chrono>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/child_process.h"
#include "launcher/command_line.h"

namespace velk {

void print(std::FILE* stream, std::string_view text);

/// A tool's path and its arguments, as the words of a child.
std::vector<std::string> with_tool(const std::string& tool, std::vector<std::string> words);

/// Runs the tool and keeps quiet about it; `said` is all that it wrote. Gives its status.
int ask_tool(const std::string& tool, const std::vector<std::string>& words, std::string& said);

/// As ask_tool(), but a tool that takes longer is ended.
int ask_tool_within(std::chrono::milliseconds limit, const std::string& tool,
                    const std::vector<std::string>& words, std::string& said);

/// The status that ask_tool_within() gives for a tool that it had to end.
inline constexpr int status_of_an_ended_tool = status_of_the_first_signal + SIGTERM;

/// Runs a child with our input. What is captured goes to standard error as it comes, and to `said`.
int run_and_listen(Child_Command command, std::string& said);

/// When the tool fails, what it said goes to standard output too: the program reads nothing else.
/// It reads only UTF-8, and a message names files. Gives the status.
int repeat_a_failure(int status, const std::string& said);

/// Runs the tool for this call. Its streams are passed on as they come, and a failure is repeated.
int run_plainly(const std::string& tool, const Command_Line& call);

/// This process turns into the tool.
[[noreturn]] void become_the_tool(const std::string& tool, const Command_Line& call);

}  // namespace velk
