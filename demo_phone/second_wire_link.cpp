#include "demo_phone/second_wire_link.h"

#include <utility>

#include "demo_phone/wire_line.h"

namespace velk {

void Second_Wire_Link::received(std::string_view bytes, Phone_Outlet& outlet) {
    if (state_ != State::reading)
        return;  // a connection carries one request; bytes after it are ignored
    const std::size_t end = bytes.find('\n');
    request_ += bytes.substr(0, end);
    if (end != std::string_view::npos || request_.size() > g_longest_line) take_request(outlet);
}

void Second_Wire_Link::take_request(Phone_Outlet& outlet) {
    constexpr std::size_t logged = 2000;
    phone_.log.line("line", std::string_view(request_).substr(0, logged));
    state_ = State::done;
    if (!played_.begins(outlet)) return;
    if (request_.size() > g_longest_line)
        reply_ = {{}, {"too-long", "The request is longer than this agent takes."}};
    else
        reply_ = answer_line(phone_, request_);
    std::string().swap(request_);
    state_ = State::answering;
    drained(outlet);
}

void Second_Wire_Link::drained(Phone_Outlet& outlet) {
    if (state_ != State::answering) return;
    std::string part;
    const bool more = fill(part);
    if (played_.send(std::move(part), outlet) && more) return;
    phone_.log.line("reply", std::to_string(played_.sent()) + " bytes");
    state_ = State::done;
    outlet.finish();
}

bool Second_Wire_Link::fill(std::string& part) {
    // As much as the largest packet takes, so that the parts do not slow down the transport.
    const std::size_t enough = phone_.settings.largest_packet;
    while (reply_.records && reply_.records(part)) {
        ++records_;
        if (part.size() >= enough) return true;
    }
    if (reply_.error.code.empty())
        Wire_Line(part).number("end", records_).end();
    else
        Wire_Line(part)
            .text("error", reply_.error.code)
            .text("message", reply_.error.message)
            .end();
    return false;
}

}  // namespace velk
