#include "demo_phone/phone_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace velk {

namespace {

/// How long a phone that nobody has come to waits before it announces itself again.
constexpr std::chrono::milliseconds announcement_interval{1000};

/// Appends what a non-blocking socket has; false when the other side is gone.
bool read_some(int socket, std::string& bytes) {
    char buffer[65536];
    const ssize_t count = recv(socket, buffer, sizeof buffer, 0);
    if (count > 0) bytes.append(buffer, static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

/// Writes as much as fits and removes it; false when the other side is gone.
bool write_some(int socket, std::string& bytes) {
    if (bytes.empty()) return true;
    const ssize_t count = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count > 0) bytes.erase(0, static_cast<std::size_t>(count));
    return count > 0 || errno == EAGAIN || errno == EINTR;
}

/// The request that makes an adb server connect to a port as it does to an emulator's.
bool announce(int server_port, int phone_port) {
    const Owned_Descriptor server = connect_tcp(server_port);
    const std::string request = "host:emulator:" + std::to_string(phone_port);
    char length[8];
    std::snprintf(length, sizeof length, "%04zx", request.size());
    return server && write_all(server.number(), length + request);
}

bool complain(const std::string& what) {
    std::fprintf(stderr, "demo_phone: %s: %s\n", what.c_str(), std::strerror(errno));
    return false;
}

}  // namespace

Phone_Server::Phone_Server(Demo_Phone& phone, Phone_Places places)
    : phone_(phone), places_(std::move(places)) {}

Phone_Server::~Phone_Server() {
    if (control_listener_) ::unlink(places_.control.c_str());
}

bool Phone_Server::open() {
    if (!plug()) return complain("port " + std::to_string(places_.port));
    if (places_.control.empty()) return true;
    control_listener_ = listen_unix(places_.control);
    return control_listener_ || complain(places_.control);
}

bool Phone_Server::plug() {
    listener_ = places_.port == 0 ? listen_odd_tcp(places_.port) : listen_tcp(places_.port);
    next_announcement_ = Clock::now();
    return plugged();
}

void Phone_Server::unplug() {
    listener_.reset();
    links_.clear();
}

void Phone_Server::announce_when_due() {
    if (places_.announce_port == 0 || !plugged() || !links_.empty()) return;
    if (Clock::now() < next_announcement_) return;
    announce(places_.announce_port, places_.port);
    next_announcement_ = Clock::now() + announcement_interval;
}

int Phone_Server::wait_time() const {
    std::optional<Clock::time_point> first;
    if (places_.announce_port != 0 && plugged() && links_.empty()) first = next_announcement_;
    for (const Link& link : links_)
        if (const auto due = link.connection.due(); due && (!first || *due < *first)) first = due;
    if (!first) return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*first - Clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

void Phone_Server::run(int stop) {
    std::vector<pollfd> polled;
    while (!quit_) {
        announce_when_due();
        polled.assign(1, {stop, POLLIN, 0});
        watch(polled);
        if (poll(polled.data(), polled.size(), wait_time()) < 0 && errno != EINTR) return;
        if (polled[0].revents != 0) return;
        serve(polled);
    }
}

void Phone_Server::watch(std::vector<pollfd>& polled) const {
    // A descriptor below zero is passed over, so the places in the list never move.
    polled.push_back({listener_.number(), POLLIN, 0});
    polled.push_back({control_listener_.number(), POLLIN, 0});
    for (const Control_Link& link : control_links_)
        polled.push_back({link.socket.number(), POLLIN, 0});
    for (const Link& link : links_) {
        const bool writes = !link.connection.outgoing().empty();
        polled.push_back(
            {link.socket.number(), static_cast<short>(writes ? POLLIN | POLLOUT : POLLIN), 0});
    }
}

void Phone_Server::serve(const std::vector<pollfd>& polled) {
    constexpr std::size_t first_link = 3;
    std::size_t place = first_link + control_links_.size();
    // The links come first: a command may unplug them all.
    std::vector<Link> alive;
    for (Link& link : links_) {
        const bool readable = (polled[place++].revents & ~POLLOUT) != 0;
        if (serve_link(link, readable)) alive.push_back(std::move(link));
    }
    links_ = std::move(alive);
    for (std::size_t i = 0; i < control_links_.size(); ++i)
        if (polled[first_link + i].revents != 0) serve_control(control_links_[i]);
    std::erase_if(control_links_, [](const Control_Link& link) { return link.done; });
    accept_all();
}

bool Phone_Server::serve_link(Link& link, bool readable) {
    std::string bytes;
    if (readable && !read_some(link.socket.number(), bytes)) return false;
    if (!link.connection.received(bytes)) return false;
    link.connection.pump();
    return write_some(link.socket.number(), link.connection.outgoing());
}

void Phone_Server::serve_control(Control_Link& link) {
    link.done = !read_some(link.socket.number(), link.line);
    constexpr std::size_t longest_line = 4096;
    const std::size_t end = link.line.find('\n');
    if (end == std::string::npos) {
        link.done = link.done || link.line.size() > longest_line;
        return;
    }
    // One command for each connection; its answer is small enough for the socket's buffer.
    std::string answer = control(phone_, *this, link.line.substr(0, end));
    write_some(link.socket.number(), answer);
    link.done = true;
}

void Phone_Server::accept_all() {
    while (Owned_Descriptor socket =
               plugged() ? accept_connection(listener_.number()) : Owned_Descriptor())
        links_.push_back({std::move(socket), Adb_Connection(phone_)});
    while (Owned_Descriptor socket = control_listener_
                                         ? accept_connection(control_listener_.number())
                                         : Owned_Descriptor())
        control_links_.push_back({std::move(socket), {}, false});
}

}  // namespace velk
