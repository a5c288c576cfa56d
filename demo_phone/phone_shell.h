// The phone's command line: the few commands that a computer sends.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "demo_phone/demo_phone.h"

namespace velk {

struct Shell_Result {
    std::string output;
    int status = 0;
};

/// The words of a command line: blanks part them, quotes and backslashes keep them together;
/// redirections are left out.
std::vector<std::string> shell_words(std::string_view line);

/// Runs one command and returns when it has ended.
Shell_Result run_shell(Demo_Phone& phone, std::string_view line);

}  // namespace velk
