// What is done for one call of the tool.
#pragma once

#include <string>

#include "launcher/command_line.h"

namespace velk {

/// Runs the real tool for this call and gives the status to end with. A command that needs no
/// mending becomes the real tool, and there is no return.
int run_errand(const std::string& tool, const Command_Line& call);

/// What stands in for the call when there is no real tool.
int run_without_a_tool(const Command_Line& call, const std::string& advice);

}  // namespace velk
