#include "launcher/own_agent.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "launcher/habits.h"

namespace velk {

namespace {

/// Our own package is far smaller; a larger one need not be read whole.
constexpr std::size_t most_bytes_of_a_package = std::size_t{16} << 20;

/// The first bytes of a file; empty when it cannot be read or is no regular file.
std::string beginning_of(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return {};  // a pipe would block
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) return {};
    std::string bytes(std::min<std::uintmax_t>(size, most_bytes_of_a_package), '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

bool contains(std::string_view text, std::string_view word) {
    return text.find(word) != std::string_view::npos;
}

}  // namespace

bool is_own_agent(const std::string& path) {
    const std::string bytes = beginning_of(path);
    return bytes.starts_with("PK\x03\x04") && contains(bytes, "assets/velk.phone.android.agent");
}

std::string_view socket_instead_of(std::string_view port) {
    if (port == "tcp:12186") return "velk.phone.android.wire1";
    if (port == "tcp:12176") return "velk.phone.android.wire2";
    return {};
}

Phone_Socket look_for_socket(std::string_view printed, std::string_view socket) {
    if (!has_line_that_begins(printed, "Num ")) return Phone_Socket::unknown;
    const std::string ending = " @" + std::string(socket);  // the mark of an abstract name
    for (std::size_t found = printed.find(ending); found != std::string_view::npos;
         found = printed.find(ending, found + 1)) {
        const std::string_view rest = printed.substr(found + ending.size());
        if (rest.empty() || rest[0] == '\n' || rest[0] == '\r') return Phone_Socket::there;
    }
    return Phone_Socket::missing;
}

bool says_installed(std::string_view printed) {
    return has_line_that_begins(printed, "Success");
}

bool refuses_to_grant(std::string_view printed) {
    constexpr std::array<std::string_view, 5> refusals{
        "Unknown option",  // Android before 6
        "unknown option",
        "Error: Unknown",
        "usage:",
        "GRANT_RUNTIME_PERMISSIONS",  // some makers let nobody grant over the cable
    };
    return !says_installed(printed) &&
           std::any_of(refusals.begin(), refusals.end(),
                       [&](std::string_view refusal) { return contains(printed, refusal); });
}

}  // namespace velk
