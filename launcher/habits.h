// Habits of an older tool that the program counts on, as pure functions of text.
#pragma once

#include <string>
#include <string_view>

namespace velk {

/// The list of devices with the blank behind its header's "attached", and without the hint
/// "; see [...]" that ends the line of a phone without permission: the hint's web address holds
/// the word "device", which would make the phone look usable.
std::string older_device_list(std::string_view output);

/// Where the list of devices begins in what the tool said in its order, its complaints included;
/// the end when there is none.
std::size_t start_of_device_list(std::string_view said);

/// The line in which the tool complains that another version of it holds the server's port; empty
/// when it does not.
std::string version_complaint(std::string_view said);

/// True when the list is empty or calls a phone offline, as it is for a moment after a phone was
/// plugged in.
bool may_not_have_met_the_phone(std::string_view list);

/// True when a phone's debugging interface is on the bus, as the system's folder of USB devices
/// tells.
bool debugging_is_on_the_bus(const std::string& folder = "/sys/bus/usb/devices");

/// True when a line of the text begins so. Only there the tool is speaking; elsewhere stand names
/// of files.
bool has_line_that_begins(std::string_view text, std::string_view beginning);

/// True when a path on the phone is meant as a folder: its last component has no extension.
bool means_a_folder(std::string_view phone_path);

/// One word for the phone's shell, whatever it holds.
std::string quoted_for_the_phone(std::string_view word);

}  // namespace velk
