#pragma once

#include <QLabel>

#include "ui/section.h"

class QDropEvent;

namespace velk {

/// Lets a person drop files on a page, and says over the whole page what would become of them
/// while they are held there. Files that the section does not take are left out; when it takes none
/// of them, or nothing now, the drag passes by.
class Drop_Area : public QLabel {
    Q_OBJECT

  public:
    /// `taken` must outlive the page.
    Drop_Area(const Dropped_Files& taken, QWidget* page);

  protected:
    bool eventFilter(QObject* page, QEvent* event) override;

  private:
    /// The paths of what is dragged, as far as it would be taken now.
    std::vector<std::string> taken_of(const QDropEvent& event) const;
    void hold_over(QDropEvent& event);
    void drop(QDropEvent& event);

    const Dropped_Files& taken_;
};

}  // namespace velk
