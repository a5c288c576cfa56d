// What the managers of all sections have in common.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"
#include "managers/quiet_line.h"
#include "ui/busy_line.h"
#include "ui/desktop.h"
#include "ui/guarded_worker.h"
#include "ui/main_window.h"
#include "ui/section.h"

namespace velk {

/// Base of the managers, which live as long as the main window. User-interface thread, but for the
/// bodies of workers.
class Table_Source {
  public:
    Table_Source(const Table_Source&) = delete;
    Table_Source& operator=(const Table_Source&) = delete;

    int selected_row = -1;  // index of the row last selected, -1 for none
    Quiet_Line quiet;
    Section section;  // what the window shows of all this

  protected:
    /// `quiet_name` is the object name of the section's quiet line.
    Table_Source(Main_Window& window, std::string quiet_name);
    ~Table_Source() = default;

    /// The section's buttons. Each takes the last command's reason from the quiet line first.
    void set_commands(std::vector<Command> commands);

    Desktop& desktop() { return window_.desktop(); }

    /// Asks with "Yes" and "No"; `agreed` runs behind "Yes".
    void ask_person(const std::string& question, std::function<void()> agreed);

    /// Behind a change of the phone's list: a load under way (`may_load` is 0) may have missed it.
    /// Then what it brings counts as old, and `needs_refresh` is set.
    void phone_was_changed(Flag may_load, Flag& needs_refresh);
    bool list_is_old_ = false;  // the phone was changed while the load under way runs

    // --- workers only ---

    void post(Desktop::Closure change) { desktop().post(std::move(change)); }
    /// The same question; true for "Yes".
    bool person_agrees(const std::string& question);
    /// Says what is waited for, until it goes.
    Busy_Note busy(std::string text) { return {desktop(), window_.busy_line(), std::move(text)}; }

    /// The rows in their order on the screen.
    template <class Row>
    std::vector<Row> rows_on_the_screen(const Row_List<Row>& rows, const Table& table);

    /// Calls `delete_one` for every row that is selected now, in ascending order, whatever becomes
    /// of each, then takes them all out of the table. Beeps, and gives false, when none is.
    template <class Row, class Delete_One>
    bool delete_selected(Row_List<Row>& rows, Table& table, Delete_One delete_one);

    Main_Window& window_;
};

/// In slices that the window does not feel, and from the start again when the table was reloaded or
/// sorted between two of them.
template <class Row>
std::vector<Row> Table_Source::rows_on_the_screen(const Row_List<Row>& rows, const Table& table) {
    constexpr std::size_t slice = 2000;
    std::vector<Row> taken;
    int reloads = -1;
    const auto take_slice = [&] {
        if (reloads != table.reloads()) taken.clear();
        reloads = table.reloads();
        taken.reserve(rows.size());
        const std::size_t end = std::min(taken.size() + slice, rows.size());
        while (taken.size() < end) taken.push_back(rows[taken.size()]);
        return end < rows.size();
    };
    while (desktop().ask(take_slice)) {
    }
    return taken;
}

template <class Row, class Delete_One>
bool Table_Source::delete_selected(Row_List<Row>& rows, Table& table, Delete_One delete_one) {
    struct Chosen {
        std::vector<int> indexes;
        std::vector<Row> rows;
        int reloads = 0;
    };
    const Chosen chosen = desktop().ask([&] {
        Chosen now{table.selected_rows(), {}, table.reloads()};
        for (const int index : now.indexes)
            now.rows.push_back(rows[static_cast<std::size_t>(index)]);
        return now;
    });
    if (chosen.rows.empty()) {
        post([this] { desktop().beep(); });
        return false;
    }
    Busy_Note note = busy("Deleting");
    for (std::size_t i = 0; i < chosen.rows.size() && !desktop().closing(); ++i) {
        note.say(format("Deleting %zu of %zu", i + 1, chosen.rows.size()));
        delete_one(chosen.rows[i]);
    }
    post([&rows, &table, indexes = chosen.indexes, reloads = chosen.reloads] {
        // A load that came in between has put other rows in their places.
        if (table.reloads() == reloads) rows.erase(indexes);
        table.reload();
    });
    return true;
}

}  // namespace velk
