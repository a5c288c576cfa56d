#pragma once

#include <QWidget>

#include "shell/widgets.h"
#include "ui/section.h"

class QHBoxLayout;

namespace velk {

class Row_Table;

/// The page of any section: its commands, its table, its status line, drawn from its description.
class Section_Page : public QWidget {
    Q_OBJECT

  public:
    /// `section` must outlive the page.
    Section_Page(const Section& section, const Window_Parts& parts);

  private:
    QHBoxLayout* command_row(const Section& section, const Window_Parts& parts);

    Row_Table* table_;
};

}  // namespace velk
