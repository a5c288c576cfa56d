#include "shell/app_delegate.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>
#include <utility>

#include "shell/about.h"
#include "shell/main_menu.h"
#include "shell/option_file.h"
#include "shell/qt_desktop.h"
#include "shell/section_entries.h"
#include "shell/velk_window.h"
#include "ui/program_wide.h"
#include "version.h"

namespace velk {

namespace {

/// The path of a folder of the program's own, made if it can be.
std::string made_folder(const QDir& around, const char* name) {
    const QString path = around.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    return path.toStdString();
}

}  // namespace

DhAppDelegate::DhAppDelegate(MainDocument& document, Velk_Window& window, Qt_Desktop& desktop,
                             Places places)
    : document_(document),
      window_(window),
      desktop_(desktop),
      menu_(window.menu()),
      places_(std::move(places)) {
    connect_menu();
    connect(&window, &Velk_Window::was_minimised, this, &DhAppDelegate::windowWillMiniaturize);
    connect(&window, &Velk_Window::was_restored, this, &DhAppDelegate::reOpenWindow);
    connect(&window, &Velk_Window::may_have_changed, this, &DhAppDelegate::look_again);
    connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] {
        if (applicationShouldTerminateAfterLastWindowClosed()) QCoreApplication::quit();
    });
    window_is_seen(true);
    look_again();
}

void DhAppDelegate::connect_menu() {
    const auto on = [this](QAction* item, auto run) {
        connect(item, &QAction::triggered, this, run);
    };
    on(menu_.about, [this] { openAboutWindow(); });
    on(menu_.hide_window, [this] { onMiniaturize(); });
    on(menu_.quit, [this] { window_.close(); });
    on(menu_.add_files, [this] { add_with(&Adding::file); });
    on(menu_.add_folder, [this] { add_with(&Adding::folder); });
    on(menu_.close_window, [this] { window_.close(); });
    on(menu_.minimize, [this] { onMiniaturize(); });
    on(menu_.product_window, [this] { reOpenWindow(); });
    on(menu_.help, [this] { openHelpURL(); });
    on(menu_.support, [this] { openSupportURL(); });
    on(menu_.save_report, [this] { save_report(); });
}

void DhAppDelegate::applicationDidFinishLaunching() {
    InitConfigLayout();
    InitConfigUrl();
    InitWorkingDir();
    menu_.name_after(QString::fromLatin1(g_product_name));
}

void DhAppDelegate::InitConfigLayout() {
    read_layout(places_.options, gPageSettingKeyValue);
}

void DhAppDelegate::InitConfigUrl() {
    read_addresses(places_.options, gPageSettingKeyValue);
}

void DhAppDelegate::InitWorkingDir() {
    QSettings(QStringLiteral("velk"), QStringLiteral("velk"))
        .setValue(QStringLiteral("NSDisabledCharacterPaletteMenuItem"), true);
    kBundleIdentifier = g_identifier;
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QDir own(data.filePath(shown(kBundleIdentifier)));
    kTempInputDir = made_folder(own, "tempinput");
    kTempOutputDir = made_folder(own, "tempoutput");
    shared_service_ = std::make_unique<Front_Service>(places_.second_start,
                                                      [this](const Wish& wish) { come(wish); });
}

void DhAppDelegate::open_address(const char* key) const {
    const auto found = gPageSettingKeyValue.find(key);
    if (found != gPageSettingKeyValue.end()) QDesktopServices::openUrl(QUrl(shown(found->second)));
}

void DhAppDelegate::openHelpURL() {
    open_address("url:help");
}

void DhAppDelegate::openSupportURL() {
    open_address("url:support");
}

void DhAppDelegate::openAboutWindow() {
    if (!about_) {
        about_ = new About(&window_);
        desktop_.keep(about_);
    }
    about_->open();
}

void DhAppDelegate::save_report() {
    const QString system = QStringLiteral("%1, %2 %3, %4")
                               .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(),
                                    QSysInfo::kernelVersion(), QSysInfo::currentCpuArchitecture());
    document_.save_report(std::string("Qt ") + qVersion(), system.toStdString());
}

void DhAppDelegate::enableMenuItem(bool on) {
    menu_.add_folder->setEnabled(on);
    menu_.add_files->setEnabled(on);
}

void DhAppDelegate::enableControl() {
    menu_.enable_own_controls(true);
    enableMenuItem(true);
}

void DhAppDelegate::disableControl() {
    menu_.enable_own_controls(false);
    enableMenuItem(false);
}

bool DhAppDelegate::takes_files() const {
    const Section* const shown = shown_section(document_);
    return shown && shown->adding.guard && *shown->adding.guard;
}

// Another view may have come since the menu was looked at.
void DhAppDelegate::add_with(std::function<void()> Adding::*way) {
    if (takes_files()) (shown_section(document_)->adding.*way)();
}

void DhAppDelegate::look_again() {
    if (!desktop_.takes_input()) return disableControl();
    if (takes_files()) return enableControl();
    menu_.enable_own_controls(true);
    enableMenuItem(false);
}

void DhAppDelegate::window_is_seen(bool seen) {
    menu_.close_window->setEnabled(seen);
    menu_.product_window->setChecked(seen);
}

bool DhAppDelegate::applicationShouldHandleReopen(bool) {
    reOpenWindow();
    return true;
}

void DhAppDelegate::windowWillMiniaturize() {
    window_is_seen(false);
}

void DhAppDelegate::onMiniaturize() {
    menu_.close_window->setEnabled(false);
    window_.showMinimized();
}

void DhAppDelegate::reOpenWindow() {
    window_.bring_to_front();
    window_is_seen(true);
}

bool DhAppDelegate::applicationShouldTerminateAfterLastWindowClosed() {
    window_is_seen(false);
    shared_service_.reset();
    return false;
}

void DhAppDelegate::come(const Wish& wish) {
    // The toolkit takes it from there when it asks the desktop for the front, on Wayland only.
    const bool takes_token = QGuiApplication::platformName() == QStringLiteral("wayland");
    if (takes_token) qputenv("XDG_ACTIVATION_TOKEN", wish.token);
    applicationShouldHandleReopen(window_.isVisible());
    if (takes_token) qunsetenv("XDG_ACTIVATION_TOKEN");
    if (wish.connect && desktop_.takes_input()) document_.OnBT_Refresh();
}

}  // namespace velk
