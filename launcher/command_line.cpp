#include "launcher/command_line.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velk {

namespace {

/// These have their value in the next word. Written in one word ("-P5038") they are one word.
bool takes_a_value(std::string_view option) {
    constexpr std::array options{"-s", "-t", "-H", "-P", "-L"};
    return std::find(options.begin(), options.end(), option) != options.end();
}

}  // namespace

std::vector<std::string> Command_Line::with(const std::vector<std::string>& other) const {
    std::vector<std::string> joined = global_options;
    joined.insert(joined.end(), other.begin(), other.end());
    return joined;
}

std::vector<std::string> Command_Line::words() const {
    std::vector<std::string> behind;
    if (!command.empty()) behind.push_back(command);
    behind.insert(behind.end(), arguments.begin(), arguments.end());
    return with(behind);
}

Command_Line read_command_line(const std::vector<std::string>& words) {
    Command_Line line;
    auto word = words.begin();
    while (word != words.end() && word->starts_with('-')) {
        const bool value_follows = takes_a_value(*word);
        line.global_options.push_back(*word++);
        if (value_follows && word != words.end()) line.global_options.push_back(*word++);
    }
    if (word != words.end()) line.command = *word++;
    line.arguments.assign(word, words.end());
    return line;
}

}  // namespace velk
