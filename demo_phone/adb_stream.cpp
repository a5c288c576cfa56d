#include "demo_phone/adb_stream.h"

#include <algorithm>
#include <utility>

namespace velk {

Adb_Stream::Adb_Stream(std::uint32_t own, std::uint32_t theirs,
                       std::unique_ptr<Phone_Service> service)
    : own_(own), theirs_(theirs), service_(std::move(service)) {}

void Adb_Stream::send(std::string bytes, std::chrono::milliseconds pause) {
    if (bytes.empty()) return;
    if (waiting_.empty()) not_before_ = Clock::now() + pause;
    waiting_.push_back({std::move(bytes), pause});
}

std::optional<std::string> Adb_Stream::take_packet(std::size_t limit) {
    if (in_flight_) return std::nullopt;
    if (waiting_.empty() && !finishing_) service_->drained(*this);
    if (waiting_.empty() || Clock::now() < not_before_) return std::nullopt;
    const Piece& first = waiting_.front();
    std::string packet = first.bytes.substr(taken_, limit);
    taken_ += packet.size();
    if (taken_ == first.bytes.size()) {
        waiting_.pop_front();
        taken_ = 0;
        if (!waiting_.empty()) not_before_ = Clock::now() + waiting_.front().pause;
    }
    in_flight_ = true;
    return packet;
}

std::optional<Adb_Stream::Clock::time_point> Adb_Stream::due() const {
    if (in_flight_ || waiting_.empty()) return std::nullopt;
    return not_before_;
}

}  // namespace velk
