#include "session/trouble_shooter.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "bridge/device_list.h"

namespace velk {

namespace {

// The tool's own words.
constexpr std::string_view other_version = "doesn't match this client";
constexpr std::string_view not_permitted = "no permissions";

bool contains(std::string_view text, std::string_view words) {
    return text.find(words) != std::string_view::npos;
}

std::string of_computer(const Trouble_Facts& facts) {
    if (facts.adb_answer && contains(*facts.adb_answer, other_version))
        return "Another version of adb is at work on port 5037: close the program that started it, "
               "then press Refresh.";
    if (facts.adb_answer && attached_position(*facts.adb_answer) == std::string::npos)
        return "There is no answer from adb. If it is not installed: sudo apt install adb";
    if (!facts.agent_package_is_there)
        return "The agent's package is missing: build it with \"cmake --build --preset release "
               "--target agent\", or put " +
               facts.agent_package + " into " + facts.directory + ".";
    return {};
}

std::string not_permitted_to(const std::string& phone) {
    return phone +
           " is plugged in, but your account may not use it: install the package "
           "android-sdk-platform-tools-common and join the group plugdev, or install Velk's own "
           "rule "
           "(70-velk.rules), then plug it in again.";
}

/// What adb lists, without the header.
std::string_view listed(const std::string& answer) {
    const std::size_t attached = attached_position(answer);
    if (!lists_a_device(answer, attached)) return {};
    return std::string_view(answer).substr(attached + define_adb_device_attached.size());
}

std::string of_listed_phone(std::string_view list) {
    const Device_State state = device_state(list);
    if (state == Device_State::offline)
        return "adb sees the phone, but the phone is offline: unlock it, pull the cable out, and "
               "plug it in again.";
    if (state == Device_State::unauthorized)
        return "adb sees the phone, but the phone has not allowed this computer (unauthorized): "
               "answer the question on its screen.";
    if (contains(list, not_permitted)) return not_permitted_to("A phone");
    return {};
}

/// The phone that has come farthest on its way.
const Usb_Phone& nearest(const std::vector<Usb_Phone>& phones) {
    const auto steps = [](const Usb_Phone& phone) {
        return std::pair(phone.shows_debugging, phone.may_be_used);
    };
    return *std::max_element(phones.begin(), phones.end(), [&](const auto& one, const auto& other) {
        return steps(one) < steps(other);
    });
}

std::string of_phone_on_the_bus(const std::vector<Usb_Phone>& phones) {
    if (phones.empty()) return "There is no phone on the USB bus: check the cable and the port.";
    const Usb_Phone& phone = nearest(phones);
    const std::string name = phone.name.empty() ? "A phone" : phone.name;
    if (!phone.shows_debugging)
        return name +
               " is plugged in, but shows no debugging interface: switch on USB debugging on it.";
    if (!phone.may_be_used) return not_permitted_to(name);
    return name + " is plugged in and ready: press Refresh.";
}

}  // namespace

std::string what_to_put_right(const Trouble_Facts& facts) {
    std::string words = of_computer(facts);
    if (facts.connected) return words;
    if (words.empty() && facts.adb_answer && !facts.bus_has_changed)
        words = of_listed_phone(listed(*facts.adb_answer));
    return words.empty() ? of_phone_on_the_bus(facts.phones) : words;
}

}  // namespace velk
