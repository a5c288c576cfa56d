// Commands that the agent only acknowledges.
#include "agent/sock_apk.h"
#include "base/trace.h"

namespace velk {

std::string sock_apk::get_command(int code) {
    return static_cast<char>(toascii(code)) + std::string(5, '\0');
}

bool sock_apk::do_command(int code) {
    const std::string command = get_command(code);
    trace_request(command);
    const bool answered = !send_command(command).empty();
    trace(answered ? "Successfully!" : "Failed!");
    return answered;
}

}  // namespace velk
