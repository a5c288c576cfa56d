// How a file of the phone becomes a file in a folder of the computer.
#pragma once

#include <string>

#include "managers/outcome.h"
#include "managers/phone_tool.h"
#include "ui/desktop.h"

namespace velk {

/// Copies the file into the folder, under its own name. Worker; blocks until the tool has ended,
/// which closing the window makes it do. The copy is good when the tool printed nothing and
/// ended by itself; a copy that is not there all the same has a reason.
///
/// What bears that name in the folder already is moved aside meanwhile and has its name again
/// afterwards; the new file becomes "name (2).jpg" then, with the first number that is free. What a
/// copy that failed or was cut has left is removed. Nothing outside the folder is touched, whatever
/// the phone's path holds: one without a name at its end is not copied.
Outcome pull_into_folder(Desktop& desktop, const Phone_Tool& tool, const std::string& phone_path,
                         const std::string& folder);

}  // namespace velk
