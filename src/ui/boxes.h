// The boxes that stand before the window and wait for a person, as the program describes them.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace velk {

enum class Alert_Style { warning, informational };

/// A modal box with a title, a text and buttons from first to last. The last one is the one that
/// changes nothing: Return, Escape and closing the box press it.
struct Alert {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;
    Alert_Style style = Alert_Style::warning;

    int last_button() const { return static_cast<int>(buttons.size()) - 1; }
};

/// The question that "No" leaves without effect.
inline Alert yes_or_no(std::string question) {
    return {.title = "Information", .text = std::move(question), .buttons = {"Yes", "No"}};
}
inline constexpr int yes = 0;

/// A panel in which the person chooses one file or folder.
struct File_Panel {
    enum class Kind { open, save };

    Kind kind = Kind::open;
    std::string title = {};    // of the panel's window; the window system's own when empty
    std::string message = {};  // told above the files
    std::string prompt = {};   // on the button that confirms; the window system's own when empty
    // Opening only; new folders can always be made.
    bool files = true;
    bool folders = false;
    std::vector<std::string> patterns = {};  // names that are shown first: "*.apk"
    bool sheet = false;                      // belongs to the main window instead of standing alone
};

}  // namespace velk
