#include "demo_phone/agent_link.h"

#include "demo_phone/played_reply.h"

namespace velk {

namespace {

constexpr std::size_t longest_request = 65536;

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
    Played_Reply reply(phone_.behaviour);
    if (!reply.begins(outlet)) return;
    const Agent_Answer answer = answer_request(phone_, request_);
    reply.send(answer.bytes, outlet);
    phone_.log.line("reply", std::to_string(reply.sent()) + " bytes");
    if (answer.closes_after || answer.bytes.empty() || reply.is_broken()) outlet.finish();
}

}  // namespace velk
