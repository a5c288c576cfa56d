#include "demo_phone/phone_sockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace velk {

namespace {

constexpr int waiting_connections = 64;

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

Owned_Descriptor make_socket(int family) {
    Owned_Descriptor descriptor(socket(family, SOCK_STREAM, 0));
    if (descriptor) fcntl(descriptor.number(), F_SETFD, FD_CLOEXEC);
    return descriptor;
}

template <typename Address>
Owned_Descriptor listen_on(Owned_Descriptor descriptor, const Address& address) {
    if (!descriptor) return {};
    const auto* plain = reinterpret_cast<const sockaddr*>(&address);
    if (bind(descriptor.number(), plain, sizeof address) != 0) return {};
    if (listen(descriptor.number(), waiting_connections) != 0) return {};
    fcntl(descriptor.number(), F_SETFL, O_NONBLOCK);
    return descriptor;
}

template <typename Address>
Owned_Descriptor connect_to(int family, const Address& address) {
    Owned_Descriptor descriptor = make_socket(family);
    if (!descriptor) return {};
    const auto* plain = reinterpret_cast<const sockaddr*>(&address);
    if (connect(descriptor.number(), plain, sizeof address) != 0) return {};
    return descriptor;
}

bool unix_address(const std::string& path, sockaddr_un& address) {
    address.sun_family = AF_UNIX;
    if (path.size() < sizeof address.sun_path) {
        std::copy(path.begin(), path.end(), address.sun_path);
        return true;
    }
    errno = ENAMETOOLONG;
    return false;
}

int port_of(int descriptor) {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &length);
    return ntohs(address.sin_port);
}

}  // namespace

Owned_Descriptor& Owned_Descriptor::operator=(Owned_Descriptor&& other) noexcept {
    if (this != &other) {
        reset();
        number_ = std::exchange(other.number_, -1);
    }
    return *this;
}

void Owned_Descriptor::reset() {
    if (number_ >= 0) close(number_);
    number_ = -1;
}

Owned_Descriptor listen_tcp(int port) {
    Owned_Descriptor descriptor = make_socket(AF_INET);
    const int on = 1;
    // A phone that is plugged in again comes back on its port at once.
    if (descriptor) setsockopt(descriptor.number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    return listen_on(std::move(descriptor), loopback(port));
}

Owned_Descriptor listen_odd_tcp(int& port) {
    constexpr int tries = 200;
    for (int i = 0; i < tries; ++i) {
        Owned_Descriptor descriptor = listen_tcp(0);
        if (!descriptor) return {};
        port = port_of(descriptor.number());
        if (port % 2 == 1) return descriptor;
        // The system favours even numbers: try the odd neighbour.
        if (Owned_Descriptor neighbour = listen_tcp(++port)) return neighbour;
    }
    return {};
}

Owned_Descriptor connect_tcp(int port) {
    return connect_to(AF_INET, loopback(port));
}

Owned_Descriptor accept_connection(int listener) {
    Owned_Descriptor descriptor(accept(listener, nullptr, nullptr));
    if (!descriptor) return {};
    const int on = 1;
    fcntl(descriptor.number(), F_SETFD, FD_CLOEXEC);
    fcntl(descriptor.number(), F_SETFL, O_NONBLOCK);
    // Refused on a socket that is not TCP, which needs it as little.
    setsockopt(descriptor.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    return descriptor;
}

Owned_Descriptor listen_unix(const std::string& path) {
    sockaddr_un address{};
    if (!unix_address(path, address)) return {};
    struct stat status {};
    const bool stale = lstat(path.c_str(), &status) == 0 && S_ISSOCK(status.st_mode) &&
                       !connect_to(AF_UNIX, address);
    if (stale) unlink(path.c_str());
    return listen_on(make_socket(AF_UNIX), address);
}

Owned_Descriptor connect_unix(const std::string& path) {
    sockaddr_un address{};
    if (!unix_address(path, address)) return {};
    return connect_to(AF_UNIX, address);
}

bool write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace velk
