// What the tool's "devices" command printed, read by fixed rules.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velk {

inline constexpr std::string_view define_adb_device_attached = "attached";
inline constexpr std::string_view define_adb_device_device = "device";
inline constexpr std::string_view define_adb_device_offline = "offline";
inline constexpr std::string_view define_adb_device_unauthorized = "unauthorized";

/// What the states of the listed devices come to.
enum class Device_State {
    usable,
    offline,
    unauthorized,  // the phone has not allowed this computer yet
    unknown,       // none of the words that are known
};

/// Position of the first "attached", which ends the header; npos when the tool printed no list.
std::size_t attached_position(std::string_view output);

/// True when anything long enough to be a device stands behind the header.
bool lists_a_device(std::string_view output, std::size_t attached_pos_start);

/// The serial number of the first listed device; empty when its line holds no TAB.
std::string get_device_sn_id(std::string_view output, std::size_t attached_pos_start);

/// The state that the whole text behind the header speaks of: all lines, not only the first.
Device_State device_state(std::string_view behind_attached);

}  // namespace velk
