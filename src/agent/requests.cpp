// Requests that are answered by one single reply.
#include "agent/channel.h"
#include "agent/sock_apk.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::size_t short_value_count = 9;  // place of the byte that counts a short value

/// The text that a short-value reply carries behind its count: one byte more than it counts.
std::string short_value(const std::string& reply) {
    if (reply.size() <= short_value_count + 1) return {};
    const int count = static_cast<signed char>(reply[short_value_count]);
    if (count < 0) return {};
    return reply.substr(short_value_count + 1, static_cast<std::size_t>(count) + 1);
}

std::string last_byte(const std::string& reply) {
    if (reply.empty()) return {};
    return format("%d", static_cast<signed char>(reply.back()));
}

std::string traced(std::string result) {
    trace("Return_string_lenth length '%d' :\n", static_cast<int>(result.size()));
    return result;
}

}  // namespace

std::string sock_apk::send_command_to_apk_for_get_something(const char* code) {
    Channel agent;
    if (!agent.connected()) return {};
    agent.send_code(code);
    return traced(short_value(agent.receive_reply()));
}

std::string sock_apk::get_battery_from_apk(const char* code) {
    Channel agent;
    if (!agent.connected()) return {};
    agent.send_code(code);
    const std::string battery = last_byte(agent.receive_reply());
    trace("\nrs string length =%d, str is [%s]\n", static_cast<int>(battery.size()),
          plain(battery));
    return battery;
}

std::string sock_apk::send_command(const std::string& command) {
    Channel agent;
    if (!agent.connected() || !agent.send_whole(command)) return {};
    return traced(agent.receive_reply());
}

std::string sock_apk::send_command1(const std::string& command) {
    return send_command(command);
}

}  // namespace velk
