#include "demo_phone/adb_connection.h"

#include <algorithm>
#include <utility>

#include "demo_phone/phone_services.h"

namespace velk {

namespace {

constexpr std::uint32_t auth_token = 1;
constexpr std::uint32_t auth_public_key = 3;
/// A real phone's are random; ours guard nothing.
const std::string token(20, 'v');

std::string banner(const Phone_Settings& settings) {
    std::string model = settings.model;
    std::replace(model.begin(), model.end(), ' ', '_');
    std::string text = "device::ro.product.name=demo_phone;ro.product.model=" + model +
                       ";ro.product.device=demo_phone;";
    if (settings.later_services) text += "features=shell_v2,cmd,stat_v2";
    return text;
}

}  // namespace

bool Adb_Connection::received(std::string_view bytes) {
    incoming_ += bytes;
    Adb_Message message;
    for (;;) {
        switch (take_adb_message(incoming_, message)) {
            case Adb_Parse::broken:
                return false;
            case Adb_Parse::needs_more:
                return true;
            case Adb_Parse::complete:
                handle(message);
        }
    }
}

void Adb_Connection::handle(const Adb_Message& message) {
    if (message.command == g_adb_connect || message.command == g_adb_auth) return greet(message);
    if (largest_packet_ == 0) return;  // nothing else counts before the handshake
    if (message.command == g_adb_open) return open(message);
    const auto stream = streams_.find(message.arg1);
    if (stream == streams_.end()) {
        if (message.command == g_adb_write) write(g_adb_close, 0, message.arg0);
        return;
    }
    if (message.command == g_adb_okay) {
        stream->second->acknowledged();
    } else if (message.command == g_adb_write) {
        write(g_adb_okay, stream->second->own(), stream->second->theirs());
        stream->second->received(message.data);
    } else if (message.command == g_adb_close) {
        write(g_adb_close, stream->second->own(), stream->second->theirs());
        streams_.erase(stream);
    }
}

void Adb_Connection::greet(const Adb_Message& message) {
    using Handshake = Phone_Behaviour::Handshake;
    if (phone_.behaviour.handshake == Handshake::offline) return;
    if (phone_.behaviour.handshake == Handshake::unauthorized) {
        // After the public key a phone waits for its owner, who never comes.
        if (message.command == g_adb_connect || message.arg0 != auth_public_key)
            write(g_adb_auth, auth_token, 0, token);
        return;
    }
    streams_.clear();
    if (message.command == g_adb_connect)
        largest_packet_ = std::clamp<std::size_t>(message.arg1, 1, phone_.settings.largest_packet);
    write(g_adb_connect, g_adb_version, static_cast<std::uint32_t>(phone_.settings.largest_packet),
          banner(phone_.settings));
}

void Adb_Connection::open(const Adb_Message& message) {
    const std::string name = message.data.substr(0, message.data.find('\0'));
    auto service = open_phone_service(phone_, name);
    phone_.log.line(service ? "service" : "refused", name);
    if (!service) return write(g_adb_close, 0, message.arg0);
    const std::uint32_t own = ++last_stream_;
    write(g_adb_okay, own, message.arg0);
    auto& stream = streams_[own];
    stream = std::make_unique<Adb_Stream>(own, message.arg0, std::move(service));
    stream->opened();
}

void Adb_Connection::pump() {
    for (auto entry = streams_.begin(); entry != streams_.end();) {
        Adb_Stream& stream = *entry->second;
        if (auto packet = stream.take_packet(largest_packet_))
            write(g_adb_write, stream.own(), stream.theirs(), std::move(*packet));
        if (stream.done()) {
            write(g_adb_close, stream.own(), stream.theirs());
            entry = streams_.erase(entry);
        } else {
            ++entry;
        }
    }
}

std::optional<Adb_Stream::Clock::time_point> Adb_Connection::due() const {
    std::optional<Adb_Stream::Clock::time_point> first;
    for (const auto& [own, stream] : streams_)
        if (const auto due = stream->due(); due && (!first || *due < *first)) first = due;
    return first;
}

void Adb_Connection::write(std::uint32_t command, std::uint32_t arg0, std::uint32_t arg1,
                           std::string data) {
    outgoing_ += encode_adb_message({command, arg0, arg1, std::move(data)});
}

}  // namespace velk
