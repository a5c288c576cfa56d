#include "session/main_document.h"

#include <algorithm>
#include <chrono>
#include <future>

#include "agent/sock_apk.h"
#include "session/section_views.h"
#include "session/usb_monitor.h"
#include "ui/program_wide.h"
#include "ui/unix_signals.h"
#include "ui/worker.h"
#include "version.h"

namespace velk {

namespace {

// Closing the window ends the program within two seconds, whatever the phone does.
constexpr std::chrono::milliseconds time_for_the_last_request{1000};
constexpr std::chrono::milliseconds time_for_the_workers{700};

constexpr const char* code_of_the_last_request = "90";
constexpr double seconds_of_the_timer = 0.2;

template <class View>
File_TableSource* files_of(const std::unique_ptr<MainViewController>& view) {
    return &static_cast<View&>(*view).source;
}

}  // namespace

MainDocument::MainDocument(Desktop& desktop, const std::string& directory, Usb_Monitor* usb)
    : Adb_Wrappers(desktop, directory),
      desktop_(desktop),
      lookout_(desktop, usb, directory,
               [this](const std::string& words) {
                   if (g_can_click_refresh) say_trouble(words);
               }),
      usb_(usb) {
    g_window = this;
    g_device = 100;
    m_LB_ps.set_text("Loading......");
    m_LevelIndicator_Size_Phone.set_value(0);
    m_LevelIndicator_Size_Storage.set_value(0);
    set_fixed_captions();
    m_views = {std::make_unique<View_Start>(),         std::make_unique<View_AllowPCConnect>(),
               std::make_unique<View_Contacts>(*this), std::make_unique<View_SMS>(*this),
               std::make_unique<View_NULL>(),          std::make_unique<View_SettingPhoneUSB>(),
               std::make_unique<View_App>(*this),      std::make_unique<View_Music>(*this),
               std::make_unique<View_Photo>(*this),    std::make_unique<View_Video>(*this),
               std::make_unique<View_Book>(*this)};
    pane_loads_.take({files_of<View_Music>(m_views[DEFINE_VIEW_Music]),
                      files_of<View_Photo>(m_views[DEFINE_VIEW_Photo]),
                      files_of<View_Video>(m_views[DEFINE_VIEW_Video]),
                      files_of<View_Book>(m_views[DEFINE_VIEW_Book])});
    for (const auto& view : m_views) view->managedObjectContext = this;
    refresh_ini_ui();
    if (usb_) CheckDeviceExist();
}

MainDocument::~MainDocument() {
    if (usb_) usb_->stop();
    g_window = nullptr;
}

bool MainDocument::is_at_work() const {
    return std::any_of(m_views.begin(), m_views.end(), [](const auto& view) {
        const Section* const section = view->section();
        return section && !all_guards_are_up(*section);
    });
}

void MainDocument::set_fixed_captions() {
    m_BT_MyAndroid.set_title("My Android");
    m_BT_Refresh.set_title("Refresh");
    m_BT_Bottom_Contacts.set_title("Contacts");
    m_BT_Bottom_SMS.set_title("SMS");
    m_BT_Bottom_Apps.set_title("Apps");
    m_LB_Free_Phone_Caption.set_text("Free");
    m_LB_Free_Storage_Caption.set_text("Free");
}

void MainDocument::windowControllerDidLoadNib() {
    set_BT_Caption_White();
    m_Progress_Battery.set_value(0);
    m_BT_Contacts.set_centred(true);
    window_title.set_text(g_product_name);
    hidden_some(false);
    displayViewController(DEFINE_VIEW_Start);
}

void MainDocument::windowWillClose() {
    if (desktop_.closing()) return;
    desktop_.close_gate();
    Worker::interrupt_all();  // an attempt under way must not speak to the phone after the goodbye
    const auto answered = std::make_shared<std::promise<void>>();
    const std::future<void> answer = answered->get_future();
    Worker::start("last request", [answered] {
        sock_apk().send_command_to_apk_for_get_something(code_of_the_last_request);
        answered->set_value();
    });
    answer.wait_for(time_for_the_last_request);
    Worker::stop_all(time_for_the_workers);
    desktop_.terminate();
}

void MainDocument::let_workers_go() {
    desktop_.close_gate();
    Worker::stop_all(time_for_the_workers);
}

void MainDocument::Start_MultiThread() {
    Worker::start("timer", [this] {
        desktop_.post([this] { start_work_for_main_thread(); });
        while (desktop_.sleep(seconds_of_the_timer)) desktop_.post([this] { timer_function1(); });
    });
}

void MainDocument::set_section_title(Toolbar_Section section, std::string title) {
    const std::array buttons = {&m_BT_Contacts, &m_BT_SMS,   &m_BT_Apps, &m_BT_Music,
                                &m_BT_Photo,    &m_BT_Video, &m_BT_Book};
    buttons.at(static_cast<std::size_t>(section))->set_title(std::move(title));
}

void MainDocument::show(Label& label, std::string text) {
    on_window([&label, text = std::move(text)] { label.set_text(text); });
}

void MainDocument::show_message(const std::string& text) {
    const Alert alert{.title = "Information", .text = text, .buttons = {"OK"}};
    if (on_ui_thread())
        desktop_.open_alert(alert, [](int) {});
    else
        desktop_.run_alert(alert);
}

}  // namespace velk
