// How a section's rows become a file that the person has chosen. Workers.
#pragma once

#include <string>

#include "base/file.h"
#include "ui/desktop.h"

namespace velk {

/// Lets the person choose a file in a panel of that title, and gives the name with "." and the
/// extension behind it, always. Asks before a file that is there would be replaced; "No" shows the
/// panel again. Empty when the person cancelled.
std::string choose_save_path(Desktop& desktop, const std::string& title,
                             const std::string& extension);

/// Writes the text as valid UTF-8, and prints whether it was written. Gives "" when it was, else
/// the reason. Nothing is written without a path, or once the window has closed: what was asked of
/// the window since then, such as its rows, is not whole.
std::string save_text(const Desktop& desktop, const std::string& path, const std::string& text,
                      Readers readers = Readers::as_before);

/// The same for the page of that title and data text, which is logged first.
std::string save_page(const Desktop& desktop, const std::string& path, const std::string& title,
                      const std::string& data);

}  // namespace velk
