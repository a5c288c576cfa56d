#pragma once

#include <QWidget>

#include "shell/widgets.h"
#include "ui/section.h"

class QLayout;

namespace velk {

class Row_Table;

/// The page of any section, drawn from its description: its title and search box, its commands,
/// its table, perhaps beside the selected row in full, and its two lines of status.
class Section_Page : public QWidget {
    Q_OBJECT

  public:
    /// `section` must outlive the page.
    Section_Page(const Section& section, const Window_Parts& parts);

  private:
    QLayout* title_row();
    QLayout* command_row();
    QWidget* table_and_detail();
    QLayout* status_lines();

    const Section& section_;
    Window_Parts parts_;
    Row_Table* table_;
};

}  // namespace velk
