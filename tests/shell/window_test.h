// A real window with a real document, for tests: the document's outlets are filled by hand, and
// no phone and no tool is there unless a test brings them.
#pragma once

#include <QAbstractButton>
#include <QTest>
#include <functional>
#include <memory>

#include "session/main_document.h"
#include "shell/app_delegate.h"
#include "shell/look.h"
#include "shell/main_menu.h"
#include "shell/qt_desktop.h"
#include "shell/velk_window.h"

namespace velk {

/// Made once for the process; every warning of the toolkit from then on is a failure.
QApplication& test_application();

/// Turns the event loop until the condition holds; false when it has not after ten seconds.
bool wait_until(const std::function<bool()>& condition);
/// The toolkit's own way is for platforms where a program may choose who is active.
bool wait_until_active(const QWidget& window);

class Open_Window {
  public:
    /// The folder is the program's, where its tools are.
    explicit Open_Window(const std::string& folder = "/nowhere");
    ~Open_Window();

    /// The visible widget of that name; null when there is none.
    template <class Widget = QWidget>
    Widget* find(const char* name) {
        for (auto* const widget : window->findChildren<Widget*>(QString::fromLatin1(name)))
            if (widget->isVisible()) return widget;
        return nullptr;
    }
    void click(const char* name) {
        QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
        turn();
    }
    /// Lets everything happen that was posted, in however many turns of the queue a busy machine
    /// needs for it.
    void turn();
    /// As after a connection: the sections open, and nothing is loaded again.
    void connect();
    /// A phone's values in every outlet.
    void fill(const std::string& phone_name = "Moss Phone 3");

    Qt_Desktop desktop;
    std::unique_ptr<MainDocument> document;
    std::unique_ptr<Velk_Window> window;
    std::unique_ptr<DhAppDelegate> delegate;  // not launched: it has no folders and hears nobody
};

}  // namespace velk
