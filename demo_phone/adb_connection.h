// One connection of an adb server: the handshake, and the streams that share the connection.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "demo_phone/adb_message.h"
#include "demo_phone/adb_stream.h"
#include "demo_phone/demo_phone.h"

namespace velk {

/// Bytes in, bytes out; the socket belongs to the caller.
class Adb_Connection {
  public:
    explicit Adb_Connection(Demo_Phone& phone) : phone_(phone) {}

    /// Takes bytes of the computer. False when they make no sense: close the connection.
    bool received(std::string_view bytes);
    /// Lets the streams put what may go out now into outgoing().
    void pump();
    /// Bytes for the socket; the caller removes what it has written.
    std::string& outgoing() { return outgoing_; }
    const std::string& outgoing() const { return outgoing_; }
    /// When pump() has something to do though nothing arrived.
    std::optional<Adb_Stream::Clock::time_point> due() const;

  private:
    void handle(const Adb_Message& message);
    void greet(const Adb_Message& message);
    void open(const Adb_Message& message);
    void close(const Adb_Message& message);
    void write(std::uint32_t command, std::uint32_t arg0, std::uint32_t arg1,
               std::string data = {});

    Demo_Phone& phone_;
    std::string incoming_;
    std::string outgoing_;
    std::map<std::uint32_t, std::unique_ptr<Adb_Stream>> streams_;  // by our number
    std::uint32_t last_stream_ = 0;
    std::size_t largest_packet_ = 0;  // 0 until the handshake is done
};

}  // namespace velk
