#include "support/agent_double.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>

#include "support/patience.h"

namespace velk {

namespace {

int listen_on(std::uint16_t port) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener, 64) != 0)
        ADD_FAILURE() << "port " << port << ": " << std::strerror(errno);
    return listener;
}

void send_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

int code_of(const std::string& request) {
    return static_cast<unsigned char>(request.front());
}

}  // namespace

Agent_Double::Agent_Double(std::uint16_t port) : listener_(listen_on(port)) {
    std::signal(SIGPIPE, SIG_IGN);
    if (::pipe2(stop_, O_CLOEXEC) != 0) ADD_FAILURE() << "no pipe";
    acceptor_ = std::thread([this] { accept_all(); });
}

Agent_Double::~Agent_Double() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        for (const Conversation& each : conversations_)
            if (!each.ended) ::shutdown(each.descriptor, SHUT_RDWR);
    }
    ::close(stop_[1]);
    acceptor_.join();
    for (Conversation& each : conversations_) each.thread.join();
    ::close(stop_[0]);
    ::close(listener_);
}

void Agent_Double::accept_all() {
    for (;;) {
        std::array<pollfd, 2> waiting{{{listener_, POLLIN, 0}, {stop_[0], POLLIN, 0}}};
        ::poll(waiting.data(), waiting.size(), -1);
        if (waiting[1].revents != 0) return;
        const int descriptor = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (descriptor < 0) continue;
        const std::lock_guard lock(mutex_);
        Conversation& conversation = conversations_.emplace_back();
        conversation.descriptor = descriptor;
        if (stopping_) ::shutdown(descriptor, SHUT_RDWR);
        conversation.thread = std::thread([this, &conversation] { converse(conversation); });
    }
}

void Agent_Double::converse(Conversation& conversation) {
    std::array<char, 65536> buffer{};
    const ssize_t count = ::recv(conversation.descriptor, buffer.data(), buffer.size(), 0);
    if (count > 0) {
        const std::string request(buffer.data(), static_cast<std::size_t>(count));
        answer(conversation.descriptor, take_reply(request));
    }
    const std::lock_guard lock(mutex_);
    ::close(conversation.descriptor);
    conversation.ended = true;
    changed_.notify_all();
}

Agent_Double::Reply Agent_Double::take_reply(const std::string& request) {
    const std::lock_guard lock(mutex_);
    requests_.push_back(request);
    changed_.notify_all();
    Reply reply;
    const auto known = replies_.find(code_of(request));
    auto& once = once_[code_of(request)];
    if (silent_) {
        reply.end = Reply::End::stay_silent;
    } else if (!once.empty()) {
        reply = once.front();
        once.erase(once.begin());
    } else if (known != replies_.end()) {
        reply = known->second;
    }
    return reply;
}

void Agent_Double::answer(int descriptor, const Reply& reply) {
    for (const Piece& piece : reply.pieces) {
        while (piece.gate.valid() &&
               piece.gate.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
            if (!pause(std::chrono::milliseconds(1))) return;
        send_all(descriptor, piece.bytes);
    }
    if (reply.end == Reply::End::reset) {
        const linger at_once{1, 0};
        ::setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
    }
    char ignored = 0;
    if (reply.end == Reply::End::stay_silent) ::recv(descriptor, &ignored, 1, 0);
}

/// False when the double goes meanwhile.
bool Agent_Double::pause(std::chrono::milliseconds time) {
    pollfd stopping{stop_[0], POLLIN, 0};
    return ::poll(&stopping, 1, static_cast<int>(time.count())) == 0;
}

void Agent_Double::reply_to(int code, Reply reply) {
    const std::lock_guard lock(mutex_);
    replies_[code] = std::move(reply);
}

void Agent_Double::reply_once_to(int code, Reply reply) {
    const std::lock_guard lock(mutex_);
    once_[code].push_back(std::move(reply));
}

void Agent_Double::be_silent() {
    const std::lock_guard lock(mutex_);
    silent_ = true;
}

std::vector<std::string> Agent_Double::requests() {
    const std::lock_guard lock(mutex_);
    return requests_;
}

std::vector<std::string> Agent_Double::codes() {
    std::vector<std::string> codes;
    for (const std::string& request : requests()) codes.push_back(std::to_string(code_of(request)));
    return codes;
}

bool Agent_Double::wait_for_requests(std::size_t count) {
    std::unique_lock lock(mutex_);
    const bool came =
        changed_.wait_for(lock, longer_than_needed, [&] { return requests_.size() >= count; });
    EXPECT_TRUE(came) << "only " << requests_.size() << " requests came";
    return came;
}

std::string Agent_Double::number(std::size_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}

std::string Agent_Double::field(const std::string& bytes) {
    return number(bytes.size()) + bytes;
}

Agent_Double::Reply Agent_Double::value(const std::string& text) {
    // The count is one less than the text has bytes, so that all of it is taken.
    return std::string(9, '\0') + static_cast<char>(text.size() - 1) + text;
}

Agent_Double::Reply Agent_Double::battery(int percent) {
    return std::string(7, '\0') + static_cast<char>(percent);
}

Agent_Double::Reply Agent_Double::contacts(const std::vector<Contact>& contacts) {
    std::string records;
    for (const Contact& each : contacts)
        records += field(each.id) + field(each.name) + field(each.tel);
    return std::string("\0\x0e", 2) + number(records.size() + 1) + '\0' + records;
}

Agent_Double::Reply Agent_Double::added(const std::string& id) {
    return std::string("\0\x05", 2) + number(id.size() + 5) + '\0' + field(id);
}

Agent_Double::Reply Agent_Double::messages(const std::vector<Message>& messages) {
    const auto header = [](std::size_t length) {
        return std::string("\0/\0\0", 4) + number(length).substr(2) + '\0';
    };
    const auto two_bytes = [](unsigned char value) { return number(value).substr(2); };
    std::string packets;
    for (const Message& each : messages) {
        const std::string record = field(each.tel) + field(each.text) + field(each.date) +
                                   two_bytes(each.type) + number(each.id) + number(each.thread) +
                                   two_bytes(1);
        packets += header(record.size()) + record;
    }
    return packets + header(0);
}

Agent_Double::Reply Agent_Double::held_back(Reply reply, std::promise<void>& until) {
    reply.pieces.front().gate = until.get_future().share();
    return reply;
}

Agent_Double::Reply Agent_Double::in_pieces(const std::string& bytes, std::size_t length) {
    Reply reply;
    for (std::size_t start = 0; start < bytes.size(); start += length)
        reply.pieces.push_back({bytes.substr(start, length)});
    return reply;
}

}  // namespace velk
