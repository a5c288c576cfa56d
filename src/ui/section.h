// What every section of the window shows, described once: a table, its status line, the quiet line
// under it, and the buttons of its commands. The window draws them all from this description.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/outlets.h"
#include "ui/table.h"

namespace velk {

/// A program-wide byte, 0 or 1, that belongs to the user-interface thread.
using Flag = unsigned char;

/// One button of a section.
struct Command {
    std::string name;     // its handler's name, the button's object name: "OnBT_Contacts_Refresh"
    std::string caption;  // "Refresh"
    std::string icon;     // a picture of the resources without folder and ending: "refresh"
    std::function<void()> run;
    const Flag* guard = nullptr;  // the button is disabled while this is 0
};

struct Section {
    std::string title;       // the table's accessible name: "Contacts"
    std::string empty_text;  // what an empty table says it would show
    Table* table = nullptr;
    Label* status = nullptr;
    std::vector<Command> commands;  // left to right
};

}  // namespace velk
