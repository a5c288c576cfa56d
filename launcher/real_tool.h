// Where the real tool is on this computer.
#pragma once

#include <string>

namespace velk {

/// The path of the real tool: what the environment's VELK_ADB names, else the first `adb` on the
/// search path that is not this program itself, else one in the usual SDK folders. Empty when
/// there is none, or when what VELK_ADB names cannot be run: a choice is not overruled.
std::string find_real_tool();

/// One line (with its line break) for a person who has no real tool: what to do about it.
std::string advice_without_a_tool();

}  // namespace velk
