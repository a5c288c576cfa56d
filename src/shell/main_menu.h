#pragma once

#include <QMenuBar>
#include <functional>

#include "shell/widgets.h"

class QAction;
class QMenu;

namespace velk {

class Content_Stack;
struct Section_Entry;

/// The menus of the main window. The items that the application's delegate acts on are public, and
/// bear placeholders for the product's name until name_after(); the View menu and the one that
/// follows the shown section act by themselves.
class MainMenu_Main : public QMenuBar {
    Q_OBJECT

  public:
    /// `content` has the page of the shown section.
    MainMenu_Main(const Window_Parts& parts, const Content_Stack& content, QWidget* window);

    /// Puts the product's name into every title that waits for it.
    void name_after(const QString& product);

    /// Lets the View menu and that of the section be used.
    void enable_own_controls(bool enable);

    QAction* about = nullptr;
    QAction* hide_window = nullptr;
    QAction* quit = nullptr;
    QAction* add_files = nullptr;
    QAction* add_folder = nullptr;
    QAction* close_window = nullptr;
    QAction* refresh = nullptr;  // of the connection; disabled where the window has no such button
    QAction* minimize = nullptr;
    QAction* product_window = nullptr;  // ticked while the window is there to be seen
    QAction* help = nullptr;
    QAction* support = nullptr;
    QAction* remove_agent = nullptr;
    QAction* save_report = nullptr;
    QMenu* help_menu = nullptr;

  private:
    void build();
    void build_view_menu();
    void add_place(const Section_Entry& entry, int number);
    QMenu* add_menu(const char* title);
    QAction* add_item(QMenu* menu, const char* name, const char* title, const char* keys = nullptr);
    void follow_section();

    Window_Parts parts_;
    const Content_Stack& content_;
    QMenu* view_menu_ = nullptr;
    QMenu* section_menu_ = nullptr;
};

}  // namespace velk
