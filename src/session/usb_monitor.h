// Phones on the USB bus: those that come and go while the program runs, and those that are there.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "ui/desktop.h"

struct udev;
struct udev_device;
struct udev_enumerate;
struct udev_monitor;

namespace velk {

/// What can be told of a phone without opening it.
struct Usb_Phone {
    std::string name;              // of the product; empty when it cannot be read
    std::string node{};            // its device file, a new one each time that it is plugged in
    bool may_be_used = false;      // this account may read and write the device file
    bool shows_debugging = false;  // it has the interface that adb speaks to
    bool operator==(const Usb_Phone&) const = default;
};

/// Tells the session (g_window) of each phone of one vendor and product that is plugged in or
/// pulled out. Everything but phones() belongs to the user-interface thread. What fails is traced
/// and stops nothing; the monitor then says less.
class Usb_Monitor {
  public:
    /// `desktop` outlives the monitor.
    explicit Usb_Monitor(Desktop& desktop) : desktop_(desktop) {}
    ~Usb_Monitor();
    Usb_Monitor(const Usb_Monitor&) = delete;
    Usb_Monitor& operator=(const Usb_Monitor&) = delete;

    /// Tells of the phones that are there already, and from then on of those that come and go.
    /// `changed` is called after every change of any device on the bus. False when the system's
    /// device library cannot be used.
    bool start(std::function<void()> changed);
    /// Says nothing from here on.
    void stop() { watch_.reset(); }

    /// The phones of any maker that are on the bus now. Any thread; may take a while.
    std::vector<Usb_Phone> phones() const;

  private:
    struct Release {
        void operator()(udev* held) const;
        void operator()(udev_device* held) const;
        void operator()(udev_enumerate* held) const;
        void operator()(udev_monitor* held) const;
    };
    using Device = std::unique_ptr<udev_device, Release>;
    using Devices = std::vector<Device>;

    /// A phone that has come and whose going will be told.
    struct Record {
        std::string deviceName;
        unsigned long locationID = 0;    // where it is plugged in
        unsigned long deviceNumber = 0;  // another one each time that it is plugged in
    };
    using Records = std::map<std::string, Record>;  // by its place in the system's device tree

    enum class Message { terminated, other };

    void DeviceAdded(const Devices& iterator);
    void DeviceNotification(Records::iterator privateDataRef, Message message);
    void set_up(udev_device* device, std::string name);

    void listen();
    void take_events();
    void note_going(udev_device* device, bool gone);
    bool is_arrival(udev_device* device);
    void take_message(udev_device* device);

    static Devices find_devices(udev* context, const char* type, bool only_watched);

    Desktop& desktop_;
    std::function<void()> changed_;
    std::unique_ptr<udev, Release> udev_;
    std::unique_ptr<udev_monitor, Release> monitor_;
    Desktop::Watch watch_;
    int listening_failed_ = 0;  // the reason, as errno has it
    Records records_;
    mutable std::mutex guard_;     // of what follows
    std::set<std::string> going_;  // places whose device has been told to go
};

}  // namespace velk
