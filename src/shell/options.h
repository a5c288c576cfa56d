// What the command line asks for.
#pragma once

#include <optional>
#include <string>

namespace velk {

/// Something to print before the program ends with a status; an error when that is not 0.
struct Exit_Message {
    std::string text;
    int status = 0;
};

struct Options {
    bool connect = false;               // press Refresh once after the window is shown
    std::string tour;                   // the folder for a tour's pictures; empty: no tour
    std::optional<Exit_Message> wrong;  // the command line cannot be followed
};

/// The answer to --help and --version, which need no display.
std::optional<Exit_Message> answer_without_display(int count, const char* const* arguments);

/// What is left of the command line when the window system has taken its own options.
Options options_of(int count, const char* const* arguments);

}  // namespace velk
