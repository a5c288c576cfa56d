#pragma once

#include <QStackedWidget>
#include <map>

#include "shell/widgets.h"

namespace velk {

class MainViewController;

/// The content box: one page at a time, made when its view is first shown; not there at all while
/// the box is hidden or empty.
class Content_Stack : public QStackedWidget {
    Q_OBJECT

  public:
    explicit Content_Stack(const Window_Parts& parts);

    /// The page that is seen now, or none.
    QWidget* shown_page() const;
    /// Called when a page has been made.
    void on_new_page(std::function<void()> tell) { new_page_ = std::move(tell); }

  private:
    void show_view();

    Window_Parts parts_;
    std::map<const MainViewController*, QWidget*> pages_;
    std::function<void()> new_page_;
};

}  // namespace velk
