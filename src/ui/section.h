// What every section of the window shows, described once: a table, its status line, the quiet line
// under it, and the buttons of its commands. The window draws them all from this description.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "ui/command.h"
#include "ui/outlets.h"
#include "ui/table.h"

namespace velk {

/// A pane that shows the selected row in full.
struct Detail {
    Label* title = nullptr;     // whom or what it is about
    Label* subtitle = nullptr;  // when
    Label* text = nullptr;      // may have many lines
    std::string empty_text;     // what it says while nothing is selected
};

/// What becomes of files and folders of the computer that a person drops on a section.
struct Dropped_Files {
    std::function<void(std::vector<std::string> paths)> take;  // empty where nothing is taken
    std::string hint = {};                   // what is said while they are held over the section
    std::vector<std::string> patterns = {};  // of the names that are taken, "*.apk"; empty for all
    const Flag* guard = nullptr;             // nothing is taken while this is 0
};

/// Columns by which the rows are found to be pictures of the phone's, which can be looked at.
struct Picture_Columns {
    const char* path_column = nullptr;  // none: there is nothing to look at
    const char* size_column = nullptr;
};

/// What the File menu can add to a section's files, one panel for each. Empty where nothing can.
struct Adding {
    std::function<void()> file = {};
    std::function<void()> folder = {};
    const Flag* guard = nullptr;  // nothing is added while this is 0
};

struct Section {
    std::string title;        // the table's accessible name: "Contacts"
    std::string empty_text;   // what an empty table says it would show
    std::string search_text;  // what an empty search box says it looks for
    Table* table = nullptr;
    Label* status = nullptr;
    Label* second_status = nullptr;  // beside it, where a section has one
    Label* quiet = nullptr;          // the second line, under the status line
    Detail detail = {};              // without a text there is no pane
    std::vector<Command> commands;   // left to right
    Dropped_Files drop = {};
    Adding adding = {};
    Picture_Columns pictures = {};  // the rows can also be shown as pictures
};

/// No command of the section is under way.
inline bool all_guards_are_up(const Section& section) {
    return std::all_of(section.commands.begin(), section.commands.end(),
                       [](const Command& each) { return !each.guard || *each.guard; });
}

}  // namespace velk
