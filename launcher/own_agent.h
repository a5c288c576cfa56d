// What the launcher has to know of Velk's own agent: its package, its sockets on the phone, and
// what a phone says to the options that the package is installed with. Pure functions of text and
// of a file's content.
#pragma once

#include <string>
#include <string_view>

namespace velk {

/// The agent's package name, by which the phone knows it.
inline constexpr std::string_view name_of_our_agent = "velk.phone.android";

/// True when the file is a package of our own agent: a zip with the entry that our build puts into
/// each of them. The stand-in and the agents of others do not have it. False for what cannot
/// be read.
bool is_own_agent(const std::string& path);

/// The abstract socket on which our own agent serves what others serve on a port of the phone
/// ("tcp:12186"); empty when there is none for it.
std::string_view socket_instead_of(std::string_view port);

enum class Phone_Socket {
    there,
    missing,
    unknown,  // what the phone said is no list of its sockets
};

/// Looks for an abstract socket in what the phone printed as its list of local sockets.
Phone_Socket look_for_socket(std::string_view printed, std::string_view socket);

/// True when the phone has installed the package.
bool says_installed(std::string_view printed);

/// True when an install failed because the phone does not know the option that grants all
/// permissions, or does not allow it.
bool refuses_to_grant(std::string_view printed);

}  // namespace velk
