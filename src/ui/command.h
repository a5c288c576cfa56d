// A thing that a person can have done with one button.
#pragma once

#include <functional>
#include <string>

namespace velk {

/// A program-wide byte, 0 or 1, that belongs to the user-interface thread.
using Flag = unsigned char;

struct Command {
    std::string name;       // its handler's name, the button's object name: "OnBT_Contacts_Refresh"
    std::string caption;    // "Refresh"
    std::string icon = {};  // a picture of the resources without folder and ending: "refresh"
    std::function<void()> run;
    const Flag* guard = nullptr;  // the button is disabled while this is 0
    bool on_delete_key = false;   // the table's Delete key runs it too
    bool is_default = false;      // a dialog's Return key runs it
};

}  // namespace velk
