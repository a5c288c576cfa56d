#pragma once

#include <QWidget>

#include "shell/widgets.h"
#include "ui/section.h"

class QAction;
class QLayout;
class QPushButton;
class QStackedWidget;

namespace velk {

class Picture_List;
class Row_Table;

/// The page of any section, drawn from its description: its title and search box, its commands,
/// its table, perhaps beside the selected row in full, and its two lines of status.
class Section_Page : public QWidget {
    Q_OBJECT

  public:
    /// `section` must outlive the page.
    Section_Page(const Section& section, const Window_Parts& parts);

    /// All that can be done here, as entries of a menu; an empty one stands between groups.
    const QList<QAction*>& menu_entries() const { return menu_entries_; }

  private:
    QLayout* title_row();
    QLayout* command_row();
    QWidget* table_and_detail();
    QLayout* status_lines();
    void add_menu_entry(const Command& command);
    void give_to_rows(QAction* entry);
    void add_switch_to_menu(QPushButton* half, const QKeySequence& keys);
    void add_separator_to_menu();
    void make_pictures();
    QLayout* view_switch();
    void show_pictures(bool pictures);

    const Section& section_;
    Window_Parts parts_;
    Row_Table* table_;
    Picture_List* pictures_ = nullptr;  // the same rows, where they can be looked at
    QStackedWidget* views_ = nullptr;   // which holds both
    QList<QAction*> menu_entries_;
};

}  // namespace velk
