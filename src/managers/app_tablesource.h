// The applications section: the table of what is installed on the phone, and installing and
// uninstalling.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "managers/app_rows.h"
#include "managers/table_source.h"
#include "ui/for_thread_var.h"

namespace velk {

/// Made with the main window and living as long; registers itself as g_app_tablesource and loads
/// its list at once. User-interface thread, but for the bodies of its workers.
class App_TableSource final : public Table_Source {
  public:
    explicit App_TableSource(Main_Window& window);
    ~App_TableSource();

    Row_List<App_TableSource_Column> table_rows;
    Label m_LB_message{"m_LB_message"};  // the section's status line
    Table m_table{"m_table_App", table_rows};

    // --- the section's buttons ---

    void OnBT_App_Install();
    void OnBT_App_Uninstall();
    /// Reloads the table from the phone, unless it is loading.
    void OnBT_Refresh();

    // --- for other parts of the program ---

    /// The same, but says so when it is loading.
    void Load();
    /// Installs the package file, unless an install runs.
    void Install_APK_To_Phone(const std::string& path) { Install_Files({path}); }
    /// The same for several, one after the other.
    void Install_Files(std::vector<std::string> paths);
    /// Uninstalls the package, unless an uninstall runs.
    void Delete_APP(const std::string& package);
    /// The table's selection changed.
    void OnTable_Selected();
    /// Puts the number of rows into the toolbar's Apps button.
    void refresh_button_app_title();

    static inline Flag g_can_click_load = 1;
    static inline Flag g_can_click_app_install = 1;
    static inline Flag g_can_click_app_uninstall = 1;

  private:
    /// Asks for the file to install; the path is empty when the person cancels.
    void get_fullpath(std::function<void(const std::string& path)> chosen);

    // Workers.
    void TableView_FullData();
    void thread_do_install_function(const std::vector<std::string>& paths, const Phone_Tool& tool,
                                    Held_Flag& installing);
    void thread_do_uninstall_function(const For_Thread_Var& arguments, const Phone_Tool& tool,
                                      Held_Flag& uninstalling);
    Outcome adb_install_apk(const std::string& path, const Phone_Tool& tool);
    void adb_uninstall_apk(const std::string& package, const Phone_Tool& tool);
    /// What ends an install and an uninstall.
    void show_change(Held_Flag& running);
};

}  // namespace velk
