// The calls that get Velk's own agent onto the phone and lead to it there. For an agent of another
// make, and for any other package, they do what the tool does.
#pragma once

#include <string>

#include "launcher/command_line.h"

namespace velk {

/// Forwards to the agent's abstract socket when it is on the phone, as our own agent listens there
/// and on no port; becomes the tool in any case. Waits a few seconds for our own agent to start.
int run_forward(const std::string& tool, const Command_Line& call);

/// Installs a package. Our own agent gets all permissions with it, as far as the phone lets the
/// computer give them.
int run_install(const std::string& tool, const Command_Line& call);

}  // namespace velk
