// One stream of an adb connection: its two numbers, its service, and what waits to go out.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "demo_phone/phone_service.h"

namespace velk {

class Adb_Stream : public Phone_Outlet {
  public:
    using Clock = std::chrono::steady_clock;

    /// `own` and `theirs` are the numbers under which the two sides know the stream.
    Adb_Stream(std::uint32_t own, std::uint32_t theirs, std::unique_ptr<Phone_Service> service);

    void send(std::string bytes, std::chrono::milliseconds pause = {}) override;
    void finish() override { finishing_ = true; }

    void opened() { service_->opened(*this); }
    void received(std::string_view bytes) { service_->received(bytes, *this); }
    /// The computer took the last packet, so that the next may go.
    void acknowledged() { in_flight_ = false; }

    /// The next packet of at most `limit` bytes, if one may go out now; it is then in flight.
    std::optional<std::string> take_packet(std::size_t limit);
    /// Nothing waits and nothing is in flight, and the service has finished.
    bool done() const { return finishing_ && waiting_.empty() && !in_flight_; }
    /// When a packet that waits for its pause may go out.
    std::optional<Clock::time_point> due() const;

    std::uint32_t own() const { return own_; }
    std::uint32_t theirs() const { return theirs_; }

  private:
    struct Piece {
        std::string bytes;
        std::chrono::milliseconds pause;
    };

    std::uint32_t own_;
    std::uint32_t theirs_;
    std::unique_ptr<Phone_Service> service_;
    std::deque<Piece> waiting_;
    std::size_t taken_ = 0;  // bytes of the first waiting piece that are already out
    Clock::time_point not_before_{};
    bool in_flight_ = false;
    bool finishing_ = false;
};

}  // namespace velk
