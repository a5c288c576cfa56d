#include "window_test.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleHints>

#include "managers/app_tablesource.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

namespace {

void fail_on_warnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
    // The platform without a display says so of every window; it has nothing to do with ours.
    for (const char* const what : {"propagateSizeHints", "raise", "grabbing the keyboard"})
        if (text.contains(QStringLiteral("does not support ") + QLatin1String(what))) return;
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg)
        ADD_FAILURE() << "the toolkit warns: " << text.toStdString();
}

QApplication* application = nullptr;
Look_Keeper* look = nullptr;

/// Gives back what the toolkit holds before leaks are counted.
class End_Of_Application : public testing::Environment {
  public:
    void TearDown() override {
        qInstallMessageHandler(nullptr);
        delete look;
        delete application;
    }
};
[[maybe_unused]] testing::Environment* const end_of_application =
    testing::AddGlobalTestEnvironment(new End_Of_Application);

}  // namespace

QApplication& test_application() {
    if (!application) {
        static int count = 1;
        static char name[] = "shell_test";
        static char* arguments[] = {name, nullptr};
        application = new QApplication(count, arguments);
        look = new Look_Keeper;
        qInstallMessageHandler(fail_on_warnings);
    }
    return *application;
}

bool wait_until(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 10'000);
}

bool wait_until_active(const QWidget& window) {
    return wait_until([&window] {
        return window.isActiveWindow() && QGuiApplication::focusWindow() == window.windowHandle();
    });
}

Open_Window::Open_Window(const std::string& folder) {
    test_application();
    document = std::make_unique<MainDocument>(desktop, folder);
    window = std::make_unique<Velk_Window>(*document, desktop);
    delegate = std::make_unique<DhAppDelegate>(
        *document, *window, desktop, DhAppDelegate::Places{QStringLiteral(":/option.cfg"), {}});
    window->menu().name_after(QStringLiteral("Velk"));
    window->show();
    EXPECT_TRUE(wait_until_active(*window));
}

Open_Window::~Open_Window() {
    desktop.drop_boxes();
    desktop.close_gate();
    EXPECT_TRUE(Worker::stop_all(std::chrono::seconds(10)));
    g_connected_adb = 0;
    g_can_click_refresh = g_can_click_contacts_load = g_can_click_loading_animation = 1;
    App_TableSource::g_can_click_load = 1;  // its first load may have been cut short
    delegate.reset();
    window.reset();
    document.reset();
}

void Open_Window::turn() {
    auto last = std::make_shared<bool>();  // goes when its turn comes, or at once after the end
    const std::weak_ptr<bool> waiting = last;
    desktop.post([last = std::move(last)] {});
    EXPECT_TRUE(wait_until([&waiting] { return waiting.expired(); }));
    QTest::qWait(0);
}

void Open_Window::connect() {
    g_connected_adb = 1;
    g_table_contacts_need_refresh = g_table_sms_need_refresh = 0;
    document->hidden_some(false);
    turn();
}

void Open_Window::fill(const std::string& phone_name) {
    MainDocument& d = *document;
    d.m_LB_Connected.set_text(define_str_connected);
    d.m_LB_USBConnect.set_text("Connected via USB");
    d.m_LB_SerialNumber.set_text("4df1a2b35c7e9d01");
    d.m_LB_MobileName.set_text(phone_name);
    d.m_LB_MobileNameBig.set_text(phone_name);
    d.m_LB_AndroidVersion.set_text("4.4.2");
    d.m_LB_Battery.set_text("85%");
    d.m_Progress_Battery.set_value(4);
    d.m_LB_Size_PhoneTotal.set_text("672.37MB");
    d.m_LB_Size_PhoneTotal.set_tool_tip("5,000,000,000 bytes");
    d.m_LB_Size_StorageTotal.set_text("1.46GB");
    d.m_LB_Size_PhoneTotalFree.set_text("224.12MB");
    d.m_LB_Size_StorageTotalFree.set_text("1023.99MB");
    d.m_LevelIndicator_Size_Phone.set_value(75);
    d.m_LevelIndicator_Size_Storage.set_value(59);
    d.m_LB_ps.set_text(phone_name + "  is connected.");
    const std::pair<Button*, const char*> titles[] = {
        {&d.m_BT_Contacts, "Contacts(240)"}, {&d.m_BT_SMS, "SMS(1500)"},
        {&d.m_BT_Apps, "Apps(30)"},          {&d.m_BT_Music, "Music(60)"},
        {&d.m_BT_Photo, "Photos(40)"},       {&d.m_BT_Video, "Videos(8)"},
        {&d.m_BT_Book, "Books(12)"}};
    for (const auto& [button, title] : titles) button->set_title(title);
    d.set_BT_Caption_White();
    turn();
}

}  // namespace velk
