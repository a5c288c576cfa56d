// What the managers of all sections have in common.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/text.h"
#include "managers/filling.h"
#include "managers/outcome.h"
#include "managers/phone_tool.h"
#include "managers/quiet_line.h"
#include "ui/busy_line.h"
#include "ui/desktop.h"
#include "ui/guarded_worker.h"
#include "ui/main_window.h"
#include "ui/section.h"

namespace velk {

// What all sections ask before they delete.
inline constexpr const char* delete_selected_question =
    "Are you sure you want to delete the selected item(s)?";
inline constexpr const char* delete_all_question = "Are your sure you want to delete all items?";

/// A list of the phone's, and what is said of it.
template <class Record>
struct Phone_List {
    const char* name;  // "messages"
    const char* code;  // of its request
    std::string (sock_apk::*fetch)(const char* code, std::vector<Record>& records);
    const char* loaded;  // the status line at the end, with a %zu for the number
    const int& counted;  // by the phone, when its summary was read
};

/// Base of the managers, which live as long as the main window. User-interface thread, but for the
/// bodies of workers.
class Table_Source {
  public:
    Table_Source(const Table_Source&) = delete;
    Table_Source& operator=(const Table_Source&) = delete;

    int selected_row = -1;  // index of the row last selected, -1 for none
    Quiet_Line quiet;
    Section section;  // what the window shows of all this
    /// Called when a load has ended and the next may start; for the session.
    std::function<void()> load_ended;

  protected:
    /// What a section is known by to all that it shares with the others.
    struct Identity {
        std::string name;  // ends the object names of its outlets: "m_LB_Quiet_Contacts"
        Label& status;     // the status line
        Flag& may_load;    // the can-click flag of its load
        Toolbar_Section button;
        const char* button_title;       // of its button, without the number: "Contacts"
        Flag* needs_refresh = nullptr;  // of its table, where there is such a flag
    };
    Table_Source(Main_Window& window, Identity identity);
    ~Table_Source() = default;

    /// The section's buttons. Each takes the last command's reason from the quiet line first.
    void set_commands(std::vector<Command> commands);
    /// The one that every section has; `name` is its handler's.
    Command refresh_command(const char* name, std::function<void()> run);
    /// The same with the last command's reason taken from the quiet line first.
    std::function<void()> afresh(std::function<void()> run);
    /// What becomes of dropped files; they take the last command's reason from the quiet line, too.
    void take_drops(Dropped_Files drops);

    Desktop& desktop() { return window_.desktop(); }

    // Boxes. What a person chose on one phone may mean something else on another: nothing is done
    // when another has been connected while the box was open, and the quiet line says so. That a
    // panel was cancelled is told in any case.

    /// Asks; `agreed` runs behind "Yes".
    void ask_person(const Alert& question, std::function<void()> agreed);
    /// `chosen` gets the path, empty when the person cancelled.
    void open_panel(const File_Panel& panel, std::function<void(const std::string& path)> chosen);
    /// `confirmed` runs behind its "OK".
    void open_dialog(Dialog& dialog, std::function<void()> confirmed);

    void say(std::string text) { identity_.status.set_text(std::move(text)); }
    /// Puts the number of rows into the section's button of the toolbar.
    void show_count(int rows);

    /// Starts `load` on a worker, unless one runs.
    void start_load(std::function<void()> load);
    /// Behind a change of the phone's list: a load under way may have missed it. Then what it
    /// brings counts as old, and the table as stale.
    void list_may_be_old();
    /// Says that the table does not hold what the phone does, and that Refresh reads it again.
    void list_is_old_now();
    /// What the quiet line says of a list that has come; see remark_on_list().
    std::string remark_on(int counted, std::size_t came) const {
        return remark_on_list(brings_an_old_list_, counted, came);
    }

    // --- workers only ---

    void post(Desktop::Closure change) { desktop().post(std::move(change)); }
    void post_status(std::string text);
    /// Puts the reason why the phone refused into the quiet line; nothing when it gave none.
    void post_reason(std::string refusal);
    /// The phone is asked to change: what it counted before is no measure any more.
    void post_change();
    /// True while a load is under way.
    bool list_is_coming();
    /// Puts the reason of a failed export into the quiet line; false when there is one. Without a
    /// path nothing was asked for, so there is nothing to explain. `was_coming`: when the rows were
    /// taken, a load was under way, so they may be a part of the list alone; it says so.
    bool tell_saved(const std::string& path, const std::string& reason, bool was_coming);
    /// Asks with "Yes" and "No"; true for "Yes" while `phone` is the serial number of the one in
    /// use.
    bool person_agrees(const std::string& question, const std::string& phone);
    /// Says what is waited for, until it goes.
    Busy_Note busy(std::string text) { return {desktop(), window_.busy_line(), std::move(text)}; }

    /// Fills the table with the list, each row from its record by row_of(record, number from 1);
    /// `told` is called behind each row with it. Ends with the count.
    template <class Row, class Record, class Told>
    void fill_from_phone(Row_List<Row>& rows, Table& table, const Phone_List<Record>& list,
                         Told told);

    template <class Row>
    struct Chosen {
        std::vector<int> indexes;  // ascending
        std::vector<Row> rows;
        int reloads = 0;  // of the table; with another number the indexes mean other rows
    };
    /// The rows that are selected now. Beeps when none is.
    template <class Row>
    Chosen<Row> chosen_rows(const Row_List<Row>& rows, const Table& table);

    /// The rows in their order on the screen.
    template <class Row>
    std::vector<Row> rows_on_the_screen(const Row_List<Row>& rows, const Table& table);

    /// Calls `work` for each of these, telling how far it is ("Deleting 3 of 17", or "Deleting" for
    /// a single one), until the window closes. It gives an Outcome; the quiet line tells how many
    /// failed, if not all was well.
    template <class Item, class Work>
    void for_each_told(const char* doing, const std::vector<Item>& items, Work work);
    /// The same; fails, and does nothing, for each while another phone than that with this serial
    /// number is in use.
    template <class Item, class Work>
    void for_each_on(const std::string& phone, const char* doing, const std::vector<Item>& items,
                     Work work);
    /// The same for records that the phone has listed. Fails also once the phone was connected
    /// anew: on the wire that is in use by now their ids may be cut to those of other records.
    template <class Item, class Work>
    void for_each_listed(const std::string& phone, const char* doing,
                         const std::vector<Item>& items, Work work);

    /// Calls `delete_one` for every row that is selected now, in ascending order, whatever Outcome
    /// each has, then takes them all out of the table. Beeps, and gives false, when none is.
    template <class Row, class Delete_One>
    bool delete_selected(const std::string& phone, Row_List<Row>& rows, Table& table,
                         Delete_One delete_one);

    Main_Window& window_;

  private:
    bool is_still_in_use(const std::string& phone);
    void table_is_stale();

    Identity identity_;
    bool brings_an_old_list_ = false;  // the phone was changed while the load under way runs
};

template <class Item, class Work>
void Table_Source::for_each_told(const char* doing, const std::vector<Item>& items, Work work) {
    Busy_Note note = busy(doing);
    std::size_t good = 0;
    std::string reason;
    for (std::size_t i = 0; i < items.size() && !desktop().closing(); ++i) {
        if (items.size() > 1) note.say(format("%s %zu of %zu", doing, i + 1, items.size()));
        Outcome outcome = work(items[i]);
        if (outcome.good) ++good;
        if (!outcome.reason.empty()) reason = std::move(outcome.reason);
    }
    post([this, words = words_of_failures(items.size() - good, items.size(), reason)] {
        if (!words.empty()) quiet.tell_reason(words);
    });
}

template <class Item, class Work>
void Table_Source::for_each_on(const std::string& phone, const char* doing,
                               const std::vector<Item>& items, Work work) {
    for_each_told(doing, items, [&](const Item& item) {
        return phone_in_use(desktop()) == phone ? work(item) : Outcome{false, another_phone};
    });
}

template <class Item, class Work>
void Table_Source::for_each_listed(const std::string& phone, const char* doing,
                                   const std::vector<Item>& items, Work work) {
    const int connection = wire_choices();
    for_each_on(phone, doing, items, [&](const Item& item) {
        return wire_choices() == connection ? work(item) : Outcome{false, connected_anew};
    });
}

template <class Row, class Record, class Told>
void Table_Source::fill_from_phone(Row_List<Row>& rows, Table& table,
                                   const Phone_List<Record>& list, Told told) {
    const Busy_Note note = busy(std::string("Waiting for the phone: ") + list.name);
    Filling filling(desktop(), rows, table);
    post([this] { quiet.tell_of_list(""); });
    std::vector<Row> loaded;
    sock_apk phone;
    {
        std::vector<Record> records;
        (phone.*list.fetch)(list.code, records);
        loaded.reserve(records.size());
        for (const Record& record : records) loaded.push_back(row_of(record, loaded.size() + 1));
    }
    const std::size_t came = loaded.size();
    filling.append(std::move(loaded), told);
    filling.post_while_mine([this, list, came, missing = phone.refusal()] {
        say(format(list.loaded, came));
        quiet.tell_of_list(missing.empty() ? remark_on(list.counted, came) : missing);
    });
    // Also behind a filling that someone ended: the number of an earlier list must not stay.
    post([this, &rows] { show_count(rows.count()); });
}

template <class Row>
Table_Source::Chosen<Row> Table_Source::chosen_rows(const Row_List<Row>& rows, const Table& table) {
    Chosen<Row> chosen = desktop().ask([&] {
        Chosen<Row> now{table.selected_rows(), {}, table.reloads()};
        for (const int index : now.indexes)
            now.rows.push_back(rows[static_cast<std::size_t>(index)]);
        return now;
    });
    if (chosen.rows.empty()) post([this] { desktop().beep(); });
    return chosen;
}

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
bool Table_Source::delete_selected(const std::string& phone, Row_List<Row>& rows, Table& table,
                                   Delete_One delete_one) {
    const Chosen<Row> chosen = chosen_rows(rows, table);
    if (chosen.rows.empty()) return false;
    for_each_listed(phone, "Deleting", chosen.rows, delete_one);
    post([&rows, &table, indexes = chosen.indexes, reloads = chosen.reloads] {
        // A load that came in between has put other rows in their places.
        if (table.reloads() == reloads) rows.erase(indexes);
        table.reload();
    });
    return true;
}

}  // namespace velk
