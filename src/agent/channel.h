// One connection to the agent: opened when it is made, closed when it goes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "agent/chunk_source.h"
#include "base/interruptor.h"

namespace velk {

// The local end of the forward that leads to the agent.
inline constexpr const char* agent_address = "127.0.0.1";
inline constexpr std::uint16_t agent_port = 12300;
/// That of the forward that leads to the agent's second wire.
inline constexpr std::uint16_t second_wire_port = 12301;

/// What a single reply may hold; the rest of a longer one is never read.
inline constexpr std::size_t largest_single_reply = 1024;

/// Every call blocks without a time limit, until the calling thread's Interruptor is cancelled:
/// then nothing more is sent and the connection reads as closed.
class Channel : public Byte_Source {
  public:
    /// Connects; a failure is reported on standard output or standard error.
    explicit Channel(std::uint16_t port = agent_port);
    ~Channel() override;
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;

    bool connected() const { return registered_.has_value(); }

    /// Sends a request of one byte, again and again until the system has taken it.
    void send_code(const char* code);
    /// Sends a whole request. False when none of it went out.
    bool send_whole(const std::string& request);
    /// Sends all of it, in as many pieces as the system takes. False when the connection ended.
    bool send_all(std::string_view bytes);
    /// What one read gives of a single reply; empty when the other side has closed.
    std::string receive_reply();

    bool readable_within(std::chrono::milliseconds time) override;
    int receive(char* bytes, std::size_t most) override;

  private:
    void connect(std::uint16_t port);

    int descriptor_;
    std::optional<Interruptor::Socket> registered_;  // only while connected
};

}  // namespace velk
