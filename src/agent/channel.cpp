#include "agent/channel.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include "agent/sock_apk.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

/// Between two tries to send, so that a connection that never takes a byte costs no processor.
constexpr std::chrono::milliseconds resend_pause{100};

/// False when the program ends: the tries have no other end.
bool may_try_again() {
    return Interruptor::current().sleep_for(resend_pause);
}

sockaddr_in agent_endpoint(std::uint16_t port) {
    sockaddr_in endpoint{};
    endpoint.sin_family = AF_INET;
    endpoint.sin_port = htons(port);
    endpoint.sin_addr.s_addr = inet_addr(agent_address);
    return endpoint;
}

}  // namespace

Channel::Channel(std::uint16_t port)
    : descriptor_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (descriptor_ < 0)
        trace("initialize socket fail ! \r\n");
    else
        connect(port);
}

void Channel::connect(std::uint16_t port) {
    const sockaddr_in endpoint = agent_endpoint(port);
    int failed = 0;
    {
        const Interruptor::Socket connecting(descriptor_);
        failed =
            ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&endpoint), sizeof endpoint);
    }
    // Registered anew: a cancel that came before there was a connection could not shut it down.
    if (failed == 0)
        registered_.emplace(descriptor_);
    else
        std::perror("connect");
}

Channel::~Channel() {
    registered_.reset();
    if (descriptor_ >= 0) ::close(descriptor_);
}

void Channel::send_code(const char* code) {
    const std::int32_t number = to_int32(code);
    const char byte = static_cast<char>(sock_apk::toascii(number));
    std::string tried;
    do {
        tried += byte;
        trace("\n\nsend:'%s',[ASCII Value='%d']\n", tried.c_str(), number);
    } while (::send(descriptor_, &byte, 1, 0) != 1 && may_try_again());
}

bool Channel::send_whole(const std::string& request) {
    ssize_t sent = -1;
    do {
        sent = ::send(descriptor_, request.data(), request.size(), 0);
    } while (sent < 0 && may_try_again());
    return sent > 0;
}

bool Channel::send_all(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(descriptor_, bytes.data(), bytes.size(), 0);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::string Channel::receive_reply() {
    std::array<char, largest_single_reply> buffer{};
    const int count = receive(buffer.data(), buffer.size());
    trace("Receive data length '%d' :\n", count);
    return std::string(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
}

bool Channel::readable_within(std::chrono::milliseconds time) {
    pollfd waiting{descriptor_, POLLIN, 0};
    return ::poll(&waiting, 1, static_cast<int>(time.count())) != 0;
}

int Channel::receive(char* bytes, std::size_t most) {
    ssize_t count = -1;
    do {
        count = ::recv(descriptor_, bytes, most, 0);
    } while (count < 0 && errno == EINTR);
    return static_cast<int>(count);
}

}  // namespace velk
