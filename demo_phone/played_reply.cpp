#include "demo_phone/played_reply.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <utility>

namespace velk {

namespace {

using Reply = Phone_Behaviour::Reply;

/// Changes about one byte in fifty, the same ones for the same reply.
void damage(std::string& bytes) {
    std::uint32_t random = static_cast<std::uint32_t>(bytes.size()) + 1;
    for (char& byte : bytes) {
        random = random * 1664525U + 1013904223U;
        if ((random >> 16) % 50 == 0) byte = static_cast<char>(random >> 24);
    }
}

}  // namespace

bool Played_Reply::begins(Phone_Outlet& outlet) const {
    if (behaviour_.reply == Reply::close_early) outlet.finish();
    return behaviour_.reply != Reply::close_early && behaviour_.reply != Reply::silent;
}

bool Played_Reply::send(std::string bytes, Phone_Outlet& outlet) {
    const bool is_cut = behaviour_.reply == Reply::cut;
    const std::size_t allowed = behaviour_.reply_bytes - std::min(behaviour_.reply_bytes, sent_);
    if (is_cut) bytes.resize(std::min(bytes.size(), allowed));
    if (behaviour_.reply == Reply::damaged) damage(bytes);
    const std::size_t size = bytes.size();
    if (behaviour_.reply == Reply::split)
        send_in_pieces(bytes, outlet);
    else
        outlet.send(std::move(bytes));
    sent_ += size;
    return !is_cut || size < allowed;
}

void Played_Reply::send_in_pieces(const std::string& bytes, Phone_Outlet& outlet) const {
    for (std::size_t i = 0; i < bytes.size(); i += behaviour_.reply_bytes) {
        const bool first = sent_ == 0 && i == 0;
        outlet.send(bytes.substr(i, behaviour_.reply_bytes),
                    first ? std::chrono::milliseconds{} : behaviour_.pause);
    }
}

bool Played_Reply::is_broken() const {
    return behaviour_.reply == Reply::cut || behaviour_.reply == Reply::damaged;
}

}  // namespace velk
