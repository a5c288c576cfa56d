// What the tool's "install" command printed, made into a sentence for the person.
#pragma once

#include <string>

namespace velk {

/// One English sentence about why the agent was not installed, with the way out where one is
/// known. Empty when the phone says that it was installed, or says nothing that is understood.
std::string why_install_failed(const std::string& printed);

}  // namespace velk
