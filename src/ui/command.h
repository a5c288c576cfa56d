// A thing that a person can have done with one button.
#pragma once

#include <functional>
#include <string>

namespace velk {

/// A program-wide byte, 0 or 1, that belongs to the user-interface thread.
using Flag = unsigned char;

// What does the same has the same keys in every section. Portable names, several with "; " between.
inline constexpr const char* keys_of_add = "Ctrl+N";
inline constexpr const char* keys_of_modify = "Ctrl+E";
inline constexpr const char* keys_of_delete_all = "Ctrl+Shift+Del";
inline constexpr const char* keys_of_refresh = "F5; Ctrl+R";
inline constexpr const char* keys_of_export = "Ctrl+Shift+E";
inline constexpr const char* keys_of_import = "Ctrl+I";

struct Command {
    std::string name;       // its handler's name, the button's object name: "OnBT_Contacts_Refresh"
    std::string caption;    // "Refresh"
    std::string icon = {};  // a picture of the resources without folder and ending: "refresh"
    std::function<void()> run;
    const Flag* guard = nullptr;  // button and menu entry are disabled while this is 0
    const char* keys = nullptr;   // that run it while its section is shown: one of those above
    bool on_delete_key = false;   // the table's Delete key runs it too
    bool is_default = false;      // a dialog's Return key runs it
};

}  // namespace velk
