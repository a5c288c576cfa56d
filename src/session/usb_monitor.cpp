#include "session/usb_monitor.h"

#include <libudev.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>
#include <utility>

#include "base/trace.h"
#include "session/main_document.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

// The phones whose coming and going is told.
constexpr long watched_vendor = 1256;
constexpr long watched_product = 26720;
constexpr const char* watched_vendor_text = "04e8";
constexpr const char* watched_product_text = "6860";

constexpr const char* usb = "usb";
constexpr const char* type_of_devices = "usb_device";
constexpr const char* type_of_interfaces = "usb_interface";

std::string_view view(const char* text) {
    return text ? std::string_view(text) : std::string_view();
}

std::string_view attribute(udev_device* device, const char* name) {
    return view(udev_device_get_sysattr_value(device, name));
}

template <class Devices>
bool has_same_place(const Devices& devices, udev_device* device) {
    return std::any_of(devices.begin(), devices.end(), [device](const auto& other) {
        return view(udev_device_get_syspath(other.get())) == udev_device_get_syspath(device);
    });
}

bool is_watched(udev_device* device) {
    return attribute(device, "idVendor") == watched_vendor_text &&
           attribute(device, "idProduct") == watched_product_text;
}

/// Class, subclass and protocol, as the bus's own tables number them.
bool is_interface(udev_device* interface, const std::array<std::string_view, 3>& numbers) {
    return attribute(interface, "bInterfaceClass") == numbers[0] &&
           attribute(interface, "bInterfaceSubClass") == numbers[1] &&
           attribute(interface, "bInterfaceProtocol") == numbers[2];
}

bool is_debugging(udev_device* interface) {
    return is_interface(interface, {"ff", "42", "01"});
}

/// Few things but phones and cameras let their files be fetched. Phones name the way or number it
/// as cameras do.
bool offers_files(udev_device* interface) {
    return is_interface(interface, {"06", "01", "01"}) ||
           attribute(interface, "interface").find("MTP") != std::string_view::npos;
}

/// Where a device is plugged in: its bus in the highest of four bytes, behind it half a byte for
/// each port on the way, from the bus on. "1-4.2" is 0x01420000.
std::optional<unsigned long> location_of(udev_device* device) {
    std::string_view name = view(udev_device_get_sysname(device));
    unsigned long location = 0;
    int shift = 24;
    for (char mark = '-'; shift >= 0; mark = '.') {
        unsigned long number = 0;
        const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
        if (error != std::errc()) return std::nullopt;
        location |= number << shift;
        name.remove_prefix(static_cast<std::size_t>(end - name.data()));
        if (name.empty()) break;
        if (name.front() != mark) return std::nullopt;
        name.remove_prefix(1);
        shift -= 4;
    }
    return location;
}

}  // namespace

void Usb_Monitor::Release::operator()(udev* held) const {
    udev_unref(held);
}
void Usb_Monitor::Release::operator()(udev_device* held) const {
    udev_device_unref(held);
}
void Usb_Monitor::Release::operator()(udev_enumerate* held) const {
    udev_enumerate_unref(held);
}
void Usb_Monitor::Release::operator()(udev_monitor* held) const {
    udev_monitor_unref(held);
}

Usb_Monitor::~Usb_Monitor() = default;

bool Usb_Monitor::start(std::function<void()> changed) {
    changed_ = std::move(changed);
    trace("Looking for devices matching vendor ID=%ld and product ID=%ld.\n", watched_vendor,
          watched_product);
    udev_.reset(udev_new());
    if (!udev_) {
        trace("IOServiceMatching returned NULL.\n");
        return false;
    }
    // Who comes between the two steps is both announced and found, and counted once.
    listen();
    DeviceAdded(find_devices(udev_.get(), type_of_devices, true));
    trace("Starting run loop.\n\n");
    trace("Unexpectedly back from CFRunLoopRun()!\n");
    return true;
}

void Usb_Monitor::listen() {
    monitor_.reset(udev_monitor_new_from_netlink(udev_.get(), "udev"));
    int failed = monitor_ ? 0 : -errno;
    if (!failed)
        failed =
            udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), usb, type_of_devices);
    if (failed >= 0) failed = udev_monitor_enable_receiving(monitor_.get());
    if (failed < 0) {
        listening_failed_ = -failed;
        return;
    }
    watch_ = desktop_.watch(udev_monitor_get_fd(monitor_.get()), [this] { take_events(); });
}

// One call for all that come together. What is said about one of them waits until it has been told;
// all else is told as it comes.
void Usb_Monitor::take_events() {
    Devices arrivals;
    Devices messages;
    while (Device device{udev_monitor_receive_device(monitor_.get())}) {
        const std::string_view action = view(udev_device_get_action(device.get()));
        note_going(device.get(), action == "remove");
        if (action == "add") {
            if (is_arrival(device.get())) arrivals.push_back(std::move(device));
        } else if (has_same_place(arrivals, device.get())) {
            messages.push_back(std::move(device));
        } else {
            take_message(device.get());
        }
    }
    if (!arrivals.empty()) DeviceAdded(arrivals);
    for (const Device& device : messages) take_message(device.get());
    changed_();
}

// A device stands in the device tree for a moment after the news of its going.
void Usb_Monitor::note_going(udev_device* device, bool gone) {
    const std::lock_guard lock(guard_);
    if (gone)
        going_.insert(udev_device_get_syspath(device));
    else
        going_.erase(udev_device_get_syspath(device));
}

bool Usb_Monitor::is_arrival(udev_device* device) {
    if (!is_watched(device)) return false;
    const auto record = records_.find(udev_device_get_syspath(device));
    if (record == records_.end()) return true;
    if (record->second.deviceNumber == udev_device_get_devnum(device)) return false;
    // Another one stands in its place, so it has gone unnoticed.
    DeviceNotification(record, Message::terminated);
    return true;
}

// What is said of one that has gone and come again within one wake-up is of the earlier stay: then
// the number is another.
void Usb_Monitor::take_message(udev_device* device) {
    const auto record = records_.find(udev_device_get_syspath(device));
    if (record == records_.end()) return;
    const dev_t number = udev_device_get_devnum(device);
    if (number != 0 && number != record->second.deviceNumber) return;
    const bool removed = view(udev_device_get_action(device)) == "remove";
    DeviceNotification(record, removed ? Message::terminated : Message::other);
}

void Usb_Monitor::DeviceAdded(const Devices& iterator) {
    ++g_device;
    for (const Device& device : iterator) {
        if (records_.contains(udev_device_get_syspath(device.get()))) continue;  // told twice
        g_window->Table_Records_Need_Refresh();
        trace("Device added.(%d)\n", g_device);
        std::string name(attribute(device.get(), "product"));
        std::fputs("deviceName: ", stderr);
        g_window->add_device(name.c_str());
        std::fprintf(stderr, "%s\n", name.c_str());
        set_up(device.get(), std::move(name));
    }
}

// The session knows of the phone by now, whatever fails here. Its going is not told then.
void Usb_Monitor::set_up(udev_device* device, std::string name) {
    const char* const place = udev_device_get_syspath(device);
    const Device standing{udev_device_new_from_syspath(udev_.get(), place)};
    if (!standing) {
        trace("IOCreatePlugInInterfaceForService returned 0x%08x.\n",
              static_cast<unsigned int>(errno));
        return;
    }
    const dev_t number = udev_device_get_devnum(standing.get());
    if (number != udev_device_get_devnum(device)) {
        trace("QueryInterface returned %d.\n", ENODEV);
        return;
    }
    const auto location = location_of(standing.get());
    if (!location) {
        trace("GetLocationID returned 0x%08x.\n", static_cast<unsigned int>(EINVAL));
        return;
    }
    trace("Location ID: 0x%lx\n\n", *location);
    records_[place] = {std::move(name), *location, number};
    if (!watch_)
        trace("IOServiceAddInterestNotification returned 0x%08x.\n",
              static_cast<unsigned int>(listening_failed_));
}

void Usb_Monitor::DeviceNotification(Records::iterator privateDataRef, Message message) {
    --g_device;
    if (message != Message::terminated) return;
    const Record gone = std::move(privateDataRef->second);
    records_.erase(privateDataRef);
    trace("Device removed.(%d)\n", g_device);
    trace("privateDataRef->deviceName: %s\n", gone.deviceName.c_str());
    g_window->remove_device(gone.deviceName);
    trace("privateDataRef->locationID: 0x%lx.\n\n", gone.locationID);
}

Usb_Monitor::Devices Usb_Monitor::find_devices(udev* context, const char* type, bool only_watched) {
    Devices found;
    const std::unique_ptr<udev_enumerate, Release> search{udev_enumerate_new(context)};
    if (!search) return found;
    udev_enumerate_add_match_subsystem(search.get(), usb);
    udev_enumerate_add_match_property(search.get(), "DEVTYPE", type);
    udev_enumerate_scan_devices(search.get());
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(search.get())) {
        Device device{udev_device_new_from_syspath(context, udev_list_entry_get_name(entry))};
        if (device && (!only_watched || is_watched(device.get())))
            found.push_back(std::move(device));
    }
    return found;
}

std::vector<Usb_Phone> Usb_Monitor::phones() const {
    std::map<std::string, Usb_Phone> found;
    const std::unique_ptr<udev, Release> context{udev_new()};
    if (!context) return {};
    const auto phone_at = [&found](udev_device* device) -> Usb_Phone& {
        const auto [entry, is_new] = found.try_emplace(udev_device_get_syspath(device));
        if (!is_new) return entry->second;
        const std::string node(view(udev_device_get_devnode(device)));
        entry->second = {.name = std::string(attribute(device, "product")),
                         .node = node,
                         .may_be_used = access(node.c_str(), R_OK | W_OK) == 0};
        return entry->second;
    };
    for (const Device& device : find_devices(context.get(), type_of_devices, true))
        phone_at(device.get());
    for (const Device& interface : find_devices(context.get(), type_of_interfaces, false)) {
        udev_device* const device =
            udev_device_get_parent_with_subsystem_devtype(interface.get(), usb, type_of_devices);
        if (device && is_debugging(interface.get()))
            phone_at(device).shows_debugging = true;
        else if (device && offers_files(interface.get()))
            phone_at(device);
    }
    const std::lock_guard lock(guard_);
    std::vector<Usb_Phone> phones;
    for (auto& [place, phone] : found)
        if (!going_.contains(place)) phones.push_back(std::move(phone));
    return phones;
}

}  // namespace velk
