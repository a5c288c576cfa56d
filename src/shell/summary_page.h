#pragma once

#include <QWidget>

#include "shell/widgets.h"

class QHBoxLayout;
class QPushButton;

namespace velk {

/// The summary of the phone: its name, how full its two storages are, Refresh, and three shortcuts.
/// It is there as long as one of its controls is.
class Summary_Page : public QWidget {
    Q_OBJECT

  public:
    explicit Summary_Page(const Window_Parts& parts);

  private:
    struct Storage;
    QWidget* heading();
    QWidget* storage_card(const Storage& storage);
    QLayout* free_space(const Storage& storage, QWidget* card);
    QLayout* gauge_on_ground(const Storage& storage, QWidget* card);
    QWidget* shortcuts();
    void add_shortcut(QHBoxLayout* row, Button& outlet, const char* icon,
                      void (MainDocument::*handler)());
    void watch_controls();

    Window_Parts parts_;
};

}  // namespace velk
