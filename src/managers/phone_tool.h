// The tool as the sections use it: for files and applications.
#pragma once

#include <string>

#include "ui/desktop.h"

namespace velk {

/// What every command to the tool begins with.
struct Phone_Tool {
    std::string path;    // of the tool
    std::string serial;  // of the phone in use

    /// Logs what is about to be sent: tool, phone and the computer's file.
    void log_with(const std::string& file) const;
};

/// The tool and the phone in use now. Any thread but one that the user-interface thread waits for.
Phone_Tool phone_tool(Desktop& desktop);

/// The serial number of the phone in use now. The same threads.
std::string phone_in_use(Desktop& desktop);

/// What a person is told whose command was meant for the phone before.
inline constexpr const char* another_phone = "Another phone is connected by now.";
inline constexpr const char* connected_anew = "The phone was connected anew meanwhile.";

/// The last line that the tool printed; empty when it printed nothing.
std::string last_line(const std::string& printed);

/// The same, when that line tells of a failure; empty otherwise.
std::string failure_in(const std::string& printed);

/// The last line when a package was installed or removed. The words for a failure differ from phone
/// to phone.
inline constexpr const char* all_went_well = "Success";

}  // namespace velk
