// A window of its own in front of the main window: fields, perhaps a table, a status line and
// buttons. The window system draws every dialog from this description.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/command.h"
#include "ui/outlets.h"
#include "ui/table.h"

namespace velk {

/// One line of a dialog: a caption, and behind it a text that is shown or typed.
struct Dialog_Field {
    std::string caption;
    Label* shows = nullptr;  // one of these two
    Text_Field* takes = nullptr;
    bool many_lines = false;             // what is typed may hold line breaks
    std::optional<Command> beside = {};  // a button at its end
};

/// User-interface thread. Lives as long as who made it; opened by Desktop, again and again.
class Dialog {
  public:
    /// `name` is the object name of its window.
    explicit Dialog(std::string name) : name_(std::move(name)) {}
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    const std::string& name() const { return name_; }
    Label window_title{"window_title"};
    bool bOK = false;  // it was closed with OK, the last time

    // What it shows, from top to bottom.
    std::vector<Dialog_Field> fields;
    Table* table = nullptr;
    std::string table_title;  // the table's accessible name
    std::string empty_text;   // what an empty table says it would show
    Label* status = nullptr;
    Label* quiet = nullptr;         // a second line under the status line
    std::vector<Command> commands;  // left to right

    /// Closed with OK, or without.
    virtual void OnBT_OK() { end(true); }
    void OnBT_Cancel() { end(false); }
    /// Takes it from the screen, if it is there.
    void close() {
        if (const auto close_window = std::exchange(close_window_, {})) close_window();
    }

    /// For the window: how it is taken from the screen; nothing once it is gone.
    void on_close(std::function<void()> close_window) { close_window_ = std::move(close_window); }

  protected:
    /// The buttons OK and Cancel; OK is what Return presses.
    std::vector<Command> ok_and_cancel() {
        return {
            {.name = "OnBT_OK", .caption = "OK", .run = [this] { OnBT_OK(); }, .is_default = true},
            {.name = "OnBT_Cancel", .caption = "Cancel", .run = [this] { OnBT_Cancel(); }}};
    }

  private:
    void end(bool ok) {
        bOK = ok;
        close();
    }

    std::string name_;
    std::function<void()> close_window_;
};

}  // namespace velk
