#include "shell/app_delegate.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QUrl>
#include <map>

#include "shell/main_menu.h"
#include "shell/option_file.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

class App_Delegate : public testing::Test {
  protected:
    App_Delegate() { open.connect(); }

    /// The entries that can be used now, by their keys.
    std::map<std::string, QAction*> entries() {
        std::map<std::string, QAction*> found;
        for (QAction* const one : open.window->menu().actions())
            for (QAction* const entry : one->menu()->actions())
                for (const QKeySequence& keys : entry->shortcuts()) {
                    if (!one->isEnabled() || !entry->isEnabled()) continue;
                    EXPECT_FALSE(found[keys.toString().toStdString()])
                        << "two entries for " << keys.toString().toStdString();
                    found[keys.toString().toStdString()] = entry;
                }
        return found;
    }
    QAction* section_entry(const char* name) {
        for (QAction* const entry :
             open.window->menu().findChild<QMenu*>("section_menu")->actions())
            if (entry->objectName() == QLatin1String(name)) return entry;
        return nullptr;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(open.window.get(), key, modifiers);
        open.turn();
    }

    Open_Window open;
    MainMenu_Main& menu = open.window->menu();
};

TEST_F(App_Delegate, has_every_button_of_every_section_in_a_menu_with_keys_of_its_own) {
    for (int place = 0; place <= 7; ++place) {
        press(static_cast<Qt::Key>(Qt::Key_0 + place));
        const MainViewController* const view = open.document->m_Control_Box1.view();
        ASSERT_EQ(view == nullptr, place == 0);
        entries();
        if (!view) continue;
        for (const Command& command : view->section()->commands) {
            const QAction* const entry = section_entry(command.name.c_str());
            ASSERT_TRUE(entry) << command.name;
            EXPECT_FALSE(entry->shortcut().isEmpty()) << command.name;
        }
    }
    EXPECT_TRUE(open.find("View_Book"));
}

TEST_F(App_Delegate, keeps_a_menu_entry_from_what_its_button_may_not_do) {
    press(Qt::Key_1);
    g_can_click_contacts_delete_all = 0;
    open.desktop.post([] {});
    open.turn();
    EXPECT_FALSE(section_entry("OnBT_Contacts_DelAll")->isEnabled());
    EXPECT_TRUE(section_entry("OnBT_AddContacts")->isEnabled());
    g_can_click_contacts_delete_all = 1;
    open.desktop.post([&] { open.desktop.take_input(false); });
    open.turn();
    press(Qt::Key_N);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(entries().contains("Ctrl+N") || entries().contains("Ctrl+1"));
    EXPECT_TRUE(menu.quit->isEnabled() && menu.close_window->isEnabled());
    open.desktop.post([&] { open.desktop.take_input(true); });
    open.turn();
    press(Qt::Key_N);
    EXPECT_EQ(QApplication::activeModalWidget()->objectName(), "Contacts_Add");
}

TEST_F(App_Delegate, refreshes_what_is_shown) {
    g_can_click_refresh = 1;
    EXPECT_EQ(entries()["F5"], menu.refresh);
    press(Qt::Key_1);
    EXPECT_EQ(entries()["F5"], section_entry("OnBT_Contacts_Refresh"));
}

TEST_F(App_Delegate, adds_files_and_folders_where_a_section_takes_them) {
    press(Qt::Key_1);
    EXPECT_FALSE(menu.add_files->isEnabled() || menu.add_folder->isEnabled());
    press(Qt::Key_4);
    EXPECT_TRUE(menu.add_files->isEnabled() && menu.add_folder->isEnabled());
    menu.add_folder->trigger();
    const auto* const panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->fileMode(), QFileDialog::Directory);
}

TEST_F(App_Delegate, follows_the_window_down_and_up_again) {
    const auto seen = [&] {
        return std::pair(menu.close_window->isEnabled(), menu.product_window->isChecked());
    };
    EXPECT_EQ(seen(), std::pair(true, true));
    menu.hide_window->trigger();
    EXPECT_TRUE(open.window->isMinimized());
    EXPECT_EQ(seen(), std::pair(false, false));
    EXPECT_TRUE(open.delegate->applicationShouldHandleReopen(false));
    EXPECT_FALSE(open.window->isMinimized());
    EXPECT_EQ(seen(), std::pair(true, true));
    open.window->setWindowState(Qt::WindowMinimized);  // as a window manager does
    EXPECT_EQ(seen(), std::pair(false, false));
    open.window->setWindowState(Qt::WindowNoState);
    EXPECT_EQ(seen(), std::pair(true, true));
}

TEST_F(App_Delegate, says_what_it_is_in_a_sheet_that_escape_closes) {
    menu.about->trigger();
    menu.about->trigger();
    QWidget* const about = QApplication::activeModalWidget();
    ASSERT_TRUE(about);
    EXPECT_EQ(about->windowModality(), Qt::WindowModal);
    EXPECT_EQ(about->findChild<QLabel*>("version")->text().left(9), "Version: ");
    EXPECT_TRUE(about->findChild<QLabel*>("version")->text().endsWith(u' '));
    for (const char* const named : {"MIT License", "Qt 6", "libplist", "libudev"})
        EXPECT_TRUE(about->findChild<QTextEdit*>("notices")->toPlainText().contains(named))
            << named;
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(App_Delegate, names_its_items_after_the_product) {
    for (const auto& [item, title] :
         {std::pair(menu.about, "About Velk"), std::pair(menu.hide_window, "Hide Velk"),
          std::pair(menu.quit, "Quit Velk"), std::pair(menu.help, "Velk Help"),
          std::pair(menu.product_window, "Velk"), std::pair(menu.actions().first(), "Velk")})
        EXPECT_EQ(item->text(), title);
}

class Opened_Addresses : public QObject {
    Q_OBJECT
  public slots:
    void open(const QUrl& url) { urls << url; }

  public:
    QList<QUrl> urls;
};

TEST_F(App_Delegate, finds_its_addresses_and_folders_and_goes_on_without_a_configuration) {
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    Opened_Addresses opened;
    QDesktopServices::setUrlHandler("https", &opened, "open");
    gPageSettingKeyValue.clear();
    open.delegate->openHelpURL();
    EXPECT_TRUE(opened.urls.isEmpty());
    open.delegate->applicationDidFinishLaunching();
    open.delegate->openHelpURL();
    open.delegate->openSupportURL();
    EXPECT_EQ(opened.urls.value(0).path() + opened.urls.value(1).path(), "/help/support");
    EXPECT_EQ(gPageSettingKeyValue.size(), 10U);
    EXPECT_EQ(kTempInputDir, home.filePath("org.velk.Velk/tempinput").toStdString());
    EXPECT_TRUE(QDir(shown(kTempInputDir)).exists() && QDir(shown(kTempOutputDir)).exists());
    QDesktopServices::unsetUrlHandler("https");
    QFile bad(home.filePath("bad.cfg"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("<option><a><b>https://x.example</b></a><c>");
    bad.close();
    for (const QString& file : {bad.fileName(), home.filePath("missing.cfg")}) {
        Settings settings;
        read_addresses(file, settings);
        read_layout(file, settings);
        EXPECT_TRUE(settings.empty());
    }
}

}  // namespace
}  // namespace velk

#include "app_delegate_test.moc"
