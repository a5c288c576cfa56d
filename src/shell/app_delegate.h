#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "shell/second_start.h"
#include "ui/section.h"

class QDialog;

namespace velk {

class MainDocument;
class MainMenu_Main;
class Qt_Desktop;
class Velk_Window;

/// What the application does around its one window: reads the configuration, makes the working
/// folders, names the menu items, and keeps them in step with the window and its sections.
/// User-interface thread.
class DhAppDelegate : public QObject {
    Q_OBJECT

  public:
    /// Where the application finds what is not its own.
    struct Places {
        QString options;       // the configuration
        QString second_start;  // the folder of the lock that it holds; empty: nobody calls
    };
    /// All of these outlive the delegate.
    DhAppDelegate(MainDocument& document, Velk_Window& window, Qt_Desktop& desktop, Places places);

    /// Everything that comes before the first event: the operations below that begin with "Init",
    /// and the titles of the menu items.
    void applicationDidFinishLaunching();
    /// The "preview:screen:" keys of gPageSettingKeyValue; unset where the configuration has none.
    void InitConfigLayout();
    /// The "url:" keys.
    void InitConfigUrl();
    /// kBundleIdentifier, kTempInputDir and kTempOutputDir; makes the folders, and listens to
    /// second starts from then on.
    void InitWorkingDir();

    // In the system's web browser; nothing happens for an address that is not set.
    void openHelpURL();
    void openSupportURL();
    void openAboutWindow();
    /// What a person can send along with a bug.
    void save_report();

    /// "Add Folder..." and "Add File(s)..." together.
    void enableMenuItem(bool on);
    // The menus of what is shown, and with them what enableMenuItem() switches.
    void enableControl();
    void disableControl();

    /// The program was started again.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    void windowWillMiniaturize();
    void onMiniaturize();
    void reOpenWindow();
    /// False: the document ends the program.
    bool applicationShouldTerminateAfterLastWindowClosed();

  private:
    void connect_menu();
    /// The shown section takes files of the computer's now.
    bool takes_files() const;
    void add_with(std::function<void()> Adding::*way);
    void open_address(const char* key) const;
    void window_is_seen(bool seen);
    void come(const Wish& wish);
    /// Enables what can be done now.
    void look_again();

    MainDocument& document_;
    Velk_Window& window_;
    Qt_Desktop& desktop_;
    MainMenu_Main& menu_;
    Places places_;
    QPointer<QDialog> about_;
    std::unique_ptr<Front_Service> shared_service_;
};

}  // namespace velk
