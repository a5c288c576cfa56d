#include "demo_phone/agent_link.h"

#include <chrono>
#include <utility>

namespace velk {

namespace {

constexpr std::size_t longest_request = 65536;

/// Changes about one byte in fifty, the same ones for the same reply.
void damage(std::string& bytes) {
    std::uint32_t random = static_cast<std::uint32_t>(bytes.size()) + 1;
    for (char& byte : bytes) {
        random = random * 1664525U + 1013904223U;
        if ((random >> 16) % 50 == 0) byte = static_cast<char>(random >> 24);
    }
}

void send_in_pieces(const std::string& bytes, const Phone_Behaviour& behaviour,
                    Phone_Outlet& outlet) {
    std::chrono::milliseconds pause{};
    for (std::size_t i = 0; i < bytes.size(); i += behaviour.reply_bytes) {
        outlet.send(bytes.substr(i, behaviour.reply_bytes), pause);
        pause = behaviour.pause;
    }
}

}  // namespace

void Agent_Link::received(std::string_view bytes, Phone_Outlet& outlet) {
    if (answered_) return;  // one request, and nothing behind it
    request_ += bytes;
    switch (state_of_request(request_)) {
        case Request_State::needs_more:
            if (request_.size() > longest_request) outlet.finish();
            return;
        case Request_State::unknown:
            phone_.log.request(request_);
            phone_.log.line("unknown", "request of no known code");
            answered_ = true;
            return outlet.finish();
        case Request_State::complete:
            phone_.log.request(request_);
            answered_ = true;
            return answer(outlet);
    }
}

void Agent_Link::answer(Phone_Outlet& outlet) {
    using Reply = Phone_Behaviour::Reply;
    if (phone_.behaviour.reply == Reply::silent) return;
    if (phone_.behaviour.reply == Reply::close_early) return outlet.finish();
    send_reply(answer_request(phone_, request_), outlet);
}

void Agent_Link::send_reply(Agent_Answer answer, Phone_Outlet& outlet) {
    using Reply = Phone_Behaviour::Reply;
    const Phone_Behaviour& behaviour = phone_.behaviour;
    if (behaviour.reply == Reply::cut)
        answer.bytes.resize(std::min(answer.bytes.size(), behaviour.reply_bytes));
    if (behaviour.reply == Reply::damaged) damage(answer.bytes);
    phone_.log.line("reply", std::to_string(answer.bytes.size()) + " bytes");
    if (behaviour.reply == Reply::split)
        send_in_pieces(answer.bytes, behaviour, outlet);
    else
        outlet.send(answer.bytes);
    // A reader that is told nonsense may never find the end that it closes at.
    const bool broken = behaviour.reply == Reply::cut || behaviour.reply == Reply::damaged;
    if (answer.closes_after || broken || answer.bytes.empty()) outlet.finish();
}

}  // namespace velk
