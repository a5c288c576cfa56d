// Habits of an older tool that the program counts on, as pure functions of text.
#pragma once

#include <string>
#include <string_view>

namespace velk {

/// The list of devices with the blank behind its header's "attached", and without the hint
/// "; see [...]" that ends the line of a phone without permission: the hint's web address holds
/// the word "device", which would make the phone look usable.
std::string older_device_list(std::string_view output);

/// True when a path on the phone is meant as a folder: its last component has no extension.
bool means_a_folder(std::string_view phone_path);

/// One word for the phone's shell, whatever it holds.
std::string quoted_for_the_phone(std::string_view word);

}  // namespace velk
