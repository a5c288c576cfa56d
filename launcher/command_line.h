// The words that the tool was called with.
#pragma once

#include <string>
#include <vector>

namespace velk {

/// "-s SERIAL push FILE FOLDER" is the options -s SERIAL, the command push and its two arguments.
struct Command_Line {
    std::vector<std::string> global_options;
    std::string command;  // empty when there is none, as in "--version"
    std::vector<std::string> arguments;

    /// The same options in front of another command.
    std::vector<std::string> with(const std::vector<std::string>& other) const;

    /// All words, in their order.
    std::vector<std::string> words() const;
};

/// Takes the words apart by the tool's own rules; does not judge them.
Command_Line read_command_line(const std::vector<std::string>& words);

}  // namespace velk
