#pragma once

#include <QDialog>

namespace velk {

/// What the program is: its name and version, its licence and those of the libraries it is linked
/// with. A sheet of the main window, which deletes itself when it is closed.
class About : public QDialog {
    Q_OBJECT

  public:
    explicit About(QWidget* window);
};

}  // namespace velk
