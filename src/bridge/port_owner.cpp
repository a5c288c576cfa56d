#include "bridge/port_owner.h"

#include <arpa/inet.h>
#include <pwd.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "base/text.h"

namespace velk {

namespace {

constexpr std::uint16_t usual_port_of_adb = 5037;

struct Listener {
    uid_t user = 0;
    unsigned long inode = 0;  // of its socket
};

/// Whether what is bound to this address, as the system's table writes it, gets what is sent to
/// 127.0.0.1.
bool is_reached(std::string_view address) {
    constexpr const char* bytes_of_all_zero[] = {"00000000", "00000000000000000000000000000000"};
    std::array<char, 9> local{};
    std::snprintf(local.data(), local.size(), "%08X", htonl(INADDR_LOOPBACK));
    std::array<char, 9> mark{};  // of an old address among the new ones
    std::snprintf(mark.data(), mark.size(), "%08X", htonl(0xFFFF));
    const std::string mapped = std::string(16, '0') + mark.data() + local.data();
    return address == bytes_of_all_zero[0] || address == bytes_of_all_zero[1] ||
           address == local.data() || address == mapped;
}

/// A line of the table: number, local address:port, remote, state, four columns, user, timeout,
/// inode.
std::optional<Listener> listener_in(const std::string& line, std::uint16_t port) {
    constexpr const char* listening = "0A";
    std::istringstream columns(line);
    std::string number, local, remote, state, queues, timer, retransmits;
    Listener found;
    int timeout = 0;
    columns >> number >> local >> remote >> state >> queues >> timer >> retransmits >> found.user >>
        timeout >> found.inode;
    if (!columns || state != listening) return std::nullopt;
    const std::size_t colon = local.find(':');
    const bool same_port = local.substr(colon + 1) == format("%04X", static_cast<unsigned>(port));
    if (!same_port || !is_reached(local.substr(0, colon))) return std::nullopt;
    return found;
}

std::optional<Listener> listener_on(std::uint16_t port) {
    for (const char* const table : {"/proc/net/tcp", "/proc/net/tcp6"}) {
        std::ifstream lines(table);
        for (std::string line; std::getline(lines, line);)
            if (const auto found = listener_in(line, port)) return found;
    }
    return std::nullopt;
}

/// Folders of other people's processes, and of those that have just ended, give nothing.
bool has_open(const std::filesystem::path& process, const std::string& link) {
    std::error_code failed;
    std::filesystem::directory_iterator each(process / "fd", failed);
    for (; !failed && each != std::filesystem::directory_iterator(); each.increment(failed)) {
        std::error_code unreadable;
        if (std::filesystem::read_symlink(each->path(), unreadable) == link) return true;
    }
    return false;
}

pid_t number_of(const std::string& name) {
    pid_t number = 0;
    const auto end = std::from_chars(name.data(), name.data() + name.size(), number).ptr;
    return end == name.data() + name.size() ? number : 0;
}

void find_process(Port_Owner& owner, unsigned long inode) {
    const std::string link = format("socket:[%lu]", inode);
    std::error_code failed;
    std::filesystem::directory_iterator each("/proc", failed);
    for (; !failed && each != std::filesystem::directory_iterator(); each.increment(failed)) {
        const pid_t number = number_of(each->path().filename());
        if (number == 0 || !has_open(each->path(), link)) continue;
        owner.process = number;
        std::ifstream name(each->path() / "comm");
        std::getline(name, owner.name);
        return;
    }
}

std::uint16_t port_of_adb() {
    const char* const moved = std::getenv("ANDROID_ADB_SERVER_PORT");
    const int port = moved ? to_int32(moved) : 0;
    return port > 0 && port <= 0xFFFF ? static_cast<std::uint16_t>(port) : usual_port_of_adb;
}

std::string name_of(uid_t user) {
    std::vector<char> room(4096);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(user, &entry, room.data(), room.size(), &found) == 0 && found)
        return found->pw_name;
    return std::to_string(user);
}

}  // namespace

std::optional<Port_Owner> owner_of_port(std::uint16_t port) {
    const auto listener = listener_on(port);
    if (!listener) return std::nullopt;
    Port_Owner owner{listener->user, 0, {}};
    find_process(owner, listener->inode);
    return owner;
}

bool is_adb(const Port_Owner& owner) {
    if (owner.name == "adb") return true;
    const auto server = owner_of_port(port_of_adb());
    return server && server->process == owner.process && server->user == owner.user;
}

std::string trouble_with_port(std::uint16_t port) {
    const auto owner = owner_of_port(port);
    if (!owner || is_adb(*owner)) return {};
    const std::string who = owner->name.empty() ? "a program of the user " + name_of(owner->user)
                                                : "the program \"" + owner->name + "\"";
    return format(
        "Port %d of this computer, through which Velk reaches the phone, is taken by %s: "
        "close that program, then press Refresh.",
        port, as_utf8(who).c_str());
}

}  // namespace velk
