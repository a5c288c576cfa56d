#include "bridge/device_list.h"

namespace velk {

namespace {

constexpr std::size_t npos = std::string_view::npos;

/// The tool ends its header in a blank and a line break.
constexpr std::size_t length_of_the_header_end = define_adb_device_attached.size() + 2;

bool contains(std::string_view text, std::string_view word) {
    return text.find(word) != npos;
}

}  // namespace

std::size_t attached_position(std::string_view output) {
    return output.find(define_adb_device_attached);
}

bool lists_a_device(std::string_view output, std::size_t attached_pos_start) {
    return attached_pos_start < output.size() &&
           attached_pos_start + length_of_the_header_end + 1 < output.size();
}

std::string get_device_sn_id(std::string_view output, std::size_t attached_pos_start) {
    if (!lists_a_device(output, attached_pos_start)) return {};
    const std::string_view devices = output.substr(attached_pos_start + length_of_the_header_end);
    const std::size_t tab = devices.find('\t');
    return tab == npos ? std::string() : std::string(devices.substr(0, tab));
}

Device_State device_state(std::string_view behind_attached) {
    if (contains(behind_attached, define_adb_device_device)) return Device_State::usable;
    if (contains(behind_attached, define_adb_device_offline)) return Device_State::offline;
    if (contains(behind_attached, define_adb_device_unauthorized))
        return Device_State::unauthorized;
    return Device_State::unknown;
}

}  // namespace velk
