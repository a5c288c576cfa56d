// The one document of the program: the session with a phone, and the window that shows it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "bridge/adb_wrappers.h"
#include "session/pane_loads.h"
#include "session/trouble_lookout.h"
#include "session/views.h"
#include "session/window_outlets.h"
#include "ui/desktop.h"
#include "ui/main_window.h"

namespace velk {

inline constexpr const char* define_str_therenodevice = "There is no device!";
inline constexpr const char* define_str_connected = "Connected!";
inline constexpr const char* g_StartDetectDevices = "";
// Two steps of a deployment that are never announced.
inline constexpr const char* g_StartInstallApp = "Installing the application on your phone...";
inline constexpr const char* g_DelPreVerOfApk =
    "Deleting the old version of the application on your phone...";

class Summary_Reader;
class Unix_Signals;
class Usb_Monitor;

/// Ctrl-C has been pressed: says so and ends the program at once, with status 0 and without a last
/// request to the agent. User-interface thread.
[[noreturn]] void SignalHandler(int number);

/// Owns the device session and the state of the main window. Everything here belongs to the
/// user-interface thread unless it says otherwise; what an attempt's worker changes on the window
/// is posted and so happens in the worker's order.
class MainDocument : public Main_Window, public Window_Outlets, public Adb_Wrappers {
  public:
    /// `directory` is where the tool and the agent's package are looked for. `usb` outlives the
    /// document; a phone that is there already starts the first attempt. Without it phones are
    /// looked for by Refresh alone.
    explicit MainDocument(Desktop& desktop, const std::string& directory = executable_directory(),
                          Usb_Monitor* usb = nullptr);
    ~MainDocument() override;

    // --- the window -------------------------------------------------------------------------

    /// Finishes the window once its controls exist.
    void windowControllerDidLoadNib();
    /// Once: sends the agent a last request and ends the event loop, within two seconds even when
    /// the agent never answers. A worker that something outside does not let go may still run then:
    /// the process must end without waiting for it.
    void windowWillClose();
    /// Interrupts the workers and gives them a moment to tidy up. Nothing is posted any more.
    void let_workers_go();

    // --- connection -------------------------------------------------------------------------

    /// Resets the screen before an attempt.
    void refresh_ini_ui();
    /// Starts an attempt unless one is running.
    void refresh_to_do_thread();
    void OnBT_Refresh();
    /// Watches for phones that come and go, and for Ctrl-C. False when the bus cannot be seen.
    bool CheckDeviceExist();
    /// Looks who has the agent's port, and tells the person when it is not adb. Any thread; see
    /// trouble_with_port() for how long it takes.
    void look_at_port();
    /// A phone of the watched kind has been plugged in, or pulled out.
    void add_device(const char* name);
    void remove_device(const std::string& name);

    Flag m_device_checked = 0;  // 1 after an arrival, 0 after a removal

    /// Reads the serial number of the first listed device out of the tool's output.
    static std::string get_device_sn_id(const std::string& output, std::size_t attached_pos_start);
    /// True when the device is usable; sets g_ver4_unauthorized when the state tells. Worker or
    /// user-interface thread; the position is not used.
    bool is_connected(const std::string& text, std::size_t attached_pos_start);

    /// Help: writes a text file, which its owner alone may read, in a place that the person
    /// chooses. Both texts are names with versions.
    void save_report(const std::string& toolkit, const std::string& system);

    /// File: asks, and takes the agent off the phone in use.
    void OnMenu_RemoveAgent();

    // --- navigation -------------------------------------------------------------------------

    /// Shows a view in the content box; nullptr hides the box. Any thread.
    void displayViewController(MainViewController* view);
    /// Shows the view with this id. Any thread.
    void displayViewController(int id);
    /// Hides or shows the summary page's controls. Any thread.
    void hidden_some(bool hidden);
    void setButtonColor(Button& button, Colour colour);

    void OnBT_MyAndroid();
    void OnBT_Contacts();
    void OnBT_SMS();
    void OnBT_App();
    void OnBT_Music();
    void OnBT_Photo();
    void OnBT_Video();
    void OnBT_Book();
    void OnBT_Bottom_Contacts() { OnBT_Contacts(); }
    void OnBT_Bottom_SMS() { OnBT_SMS(); }
    void OnBT_Bottom_Apps() { OnBT_App(); }

    /// Marks every table as stale.
    void Table_Records_Need_Refresh();
    // Any thread.
    void show_allow_pc_connect_view();
    void show_setting_phone_usb_view();

    /// True while lists come by themselves after a connection.
    bool lists_are_coming() const { return !pane_loads_.all_ended(); }

    /// A command or a load of some section is under way.
    bool is_at_work() const;

    /// The content views; a view's id is its index.
    std::array<std::unique_ptr<MainViewController>, 11> m_views;
    Colour m_color_toolbar_button = white;
    std::string m_title;

    // --- what the managers need of the window -------------------------------------------------

    Desktop& desktop() override { return desktop_; }
    Busy_Line& busy_line() override { return busy; }
    void set_section_title(Toolbar_Section section, std::string title) override;
    void set_BT_Caption_White() override;
    void show_message(const std::string& text) override;

    // --- a run loop source and a timer that nothing starts ------------------------------------

    /// Calls start_work_for_main_thread once and timer_function1 every 0.2 seconds until the
    /// program ends. Neither does anything, and nothing starts this.
    void Start_MultiThread();
    void start_work_for_main_thread() {}
    void timer_function1() {}

  private:
    // Connection: the worker and what it runs.
    void thread_do_refresh();
    void thread_do_refresh_function();
    void do_all_thing_for_thread();
    void no_device_is_listed();
    void device_is_not_usable();
    void device_is_usable(const std::string& serial);
    void adb_basic_informatin(const std::string& serial);
    void remove_agent(const std::string& phone);

    // The device summary. The order of the requests is fixed.
    void get_mobile_basic_information(Busy_Note& note);
    void show_battery(const std::string& per_cent);
    void read_storage(Summary_Reader& phone);
    std::int32_t show_size(const std::string& reported, Label& label);
    void read_counts(Summary_Reader& phone);

    void set_fixed_captions();
    bool may_leave_the_section() const;
    bool may_show_media() const;
    void show_section(int id);
    void show_trouble(int id);
    void look_for_trouble();
    bool shows_connection() const;
    void say_trouble(const std::string& sentence);

    /// Does this on the user-interface thread: at once there, posted in order from a worker.
    void on_window(Desktop::Closure change) { desktop_.perform(std::move(change)); }
    void show(Label& label, std::string text);

    Desktop& desktop_;
    Pane_Loads pane_loads_;
    Trouble_Lookout lookout_;
    Usb_Monitor* usb_;
    std::unique_ptr<Unix_Signals> interrupt_;
};

}  // namespace velk
