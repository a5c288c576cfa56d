// What the sections of music, videos, photos and books have in common, which is all but their rows
// and a description.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "managers/file_rows.h"
#include "managers/table_source.h"

namespace velk {

/// How one of these sections differs from the others. Lives as long as the program.
struct File_Pane {
    const char* name;   // ends the object names of its outlets: "Music"
    const char* title;  // of the table, which is what it lists: "Videos"
    const char* files;  // "videos", in sentences of this program's own
    Toolbar_Section button;
    const char* button_title;   // without the number: "Videos"
    const char* list_code;      // of the request for the list
    const char* loading;        // the status line behind each row: its number and path
    const char* loaded;         // the status line at the end: how many
    const char* phone_folder;   // takes the files that are added
    const char* after_add;      // the status line that replaces an add's result; empty for none
    const char* delete_result;  // how a line about a delete names the file: by id and path
    int (sock_apk::*delete_code)() const;
    bool has_ids;               // the phone knows the files by ids, too
    const char* export_button;  // the name of the button's handler
    Picture_Columns pictures = {};
    Flag& may_load;  // the can-click flags
    Flag& may_add;
    Flag& may_delete;
    Flag& may_export;
    const int& counted;  // by the phone, when its summary was read
};

/// Made with the main window and living as long. User-interface thread, but for the bodies of its
/// workers.
class File_TableSource : public Table_Source {
  public:
    Table m_table;
    Label m_LB_TIPS{"m_LB_TIPS"};                // the section's status line
    Label m_LB_sms_content{"m_LB_sms_content"};  // a second label; nothing is ever put there

    // --- the section's buttons; the export's has a name of its own in each section ---

    /// Reloads the table from the phone, unless it is loading.
    void OnBT_Refresh() { start_loading(); }
    void OnBT_Add();
    void OnBT_Delete();

    // --- for other parts of the program ---

    /// Copies a file or folder of the computer to the phone, unless an add runs.
    void Add_File_To_Phone(const std::string& path) { Add_Files({path}); }
    /// The same for several, one after the other, with one message at the end.
    void Add_Files(std::vector<std::string> paths);
    /// Deletes the selected rows, unless that is under way. The texts are what is said of them.
    void Delete_Record(const std::string& id, const std::string& andMusicPath);
    /// The table's selection changed.
    void OnTable_Selected();
    bool is_loading() const { return !pane_.may_load; }
    /// Empties the table: what it lists may be another phone's. What a load still brings is
    /// dropped.
    virtual void forget_list() = 0;

  protected:
    /// `rows` are those of the table, and outlive this.
    File_TableSource(Main_Window& window, const File_Pane& pane, Table_Rows& rows);
    ~File_TableSource() = default;

    void start_loading();
    /// Asks for a file, a folder, or either, and adds it.
    void choose_and_add(bool files, bool folders);
    /// Asks for a folder and copies the selected files there, unless that is under way.
    void choose_folder_and_export();
    const File_Pane& pane() const { return pane_; }

  private:
    using Delete_One = std::function<Outcome(const Listed_File&)>;

    // What depends on the kind of rows. Workers.
    virtual void TableView_FullData() = 0;
    /// The selected files, ascending. Beeps when there is none.
    virtual std::vector<Listed_File> chosen_files() = 0;
    /// See Table_Source::delete_selected.
    virtual bool delete_chosen(const std::string& phone, const Delete_One& delete_one) = 0;

    /// Behind a change of the phone's files: a load under way may have missed it.
    void reload_after_a_change();
    void export_to(const std::string& folder);

    // Workers.
    Outcome add_file(const std::string& path, const Phone_Tool& tool);
    void thread_do_add_file_function(const std::vector<std::string>& paths, const Phone_Tool& tool,
                                     Held_Flag& adding);
    bool adb_delete_file_by_apk_OnThePhone(const std::string& id, const std::string& andFilePath,
                                           const std::string& phone);
    void export_files(const std::string& folder, const Phone_Tool& tool);

    const File_Pane& pane_;
};

/// The rows, which come before the table that shows them.
template <class Row>
struct Rows_Of_Files {
    Row_List<Row> table_rows;
};

/// The part that knows the kind of rows.
template <class Row>
class File_Table : public Rows_Of_Files<Row>, public File_TableSource {
  public:
    using Rows_Of_Files<Row>::table_rows;

  protected:
    File_Table(Main_Window& window, const File_Pane& pane)
        : File_TableSource(window, pane, table_rows) {}
    ~File_Table() = default;

    void forget_list() override {
        table_rows.clear();
        m_table.reload();
    }

  private:
    void TableView_FullData() override {
        const Phone_List<typename Row::Record> list = {pane().files, pane().list_code, Row::fetch,
                                                       pane().loaded, pane().counted};
        fill_from_phone(table_rows, m_table, list, [this](const Row& row) {
            const Listed_File file = file_of(row);
            say(format(pane().loading, file.number.c_str(), file.path.c_str()));
        });
    }
    std::vector<Listed_File> chosen_files() override {
        std::vector<Listed_File> files;
        for (const Row& row : chosen_rows(table_rows, m_table).rows) files.push_back(file_of(row));
        return files;
    }
    bool delete_chosen(const std::string& phone,
                       const std::function<Outcome(const Listed_File&)>& delete_one) override {
        return delete_selected(phone, table_rows, m_table,
                               [&](const Row& row) { return delete_one(file_of(row)); });
    }
};

}  // namespace velk
