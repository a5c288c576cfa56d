#include "demo_phone/adb_message.h"

#include "demo_phone/bytes.h"

namespace velk {

namespace {

constexpr std::size_t header_length = 24;

std::uint32_t data_check(const std::string& data) {
    std::uint32_t sum = 0;
    for (const char byte : data) sum += static_cast<unsigned char>(byte);
    return sum;
}

}  // namespace

std::string encode_adb_message(const Adb_Message& message) {
    std::string out;
    out.reserve(header_length + message.data.size());
    append_little(out, message.command);
    append_little(out, message.arg0);
    append_little(out, message.arg1);
    append_little(out, message.data.size());
    append_little(out, data_check(message.data));
    append_little(out, ~message.command);
    return out += message.data;
}

Adb_Parse take_adb_message(std::string& buffer, Adb_Message& message) {
    if (buffer.size() < header_length) return Adb_Parse::needs_more;
    const std::uint32_t command = little_at(buffer, 0);
    const std::size_t length = little_at(buffer, 12);
    if (little_at(buffer, 20) != ~command || length > g_adb_largest_data) return Adb_Parse::broken;
    if (buffer.size() < header_length + length) return Adb_Parse::needs_more;
    message = {command, little_at(buffer, 4), little_at(buffer, 8),
               buffer.substr(header_length, length)};
    buffer.erase(0, header_length + length);
    return Adb_Parse::complete;
}

}  // namespace velk
