// Who listens on a port of this computer, as far as the system lets this person see.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>

namespace velk {

struct Port_Owner {
    uid_t user = 0;
    pid_t process = 0;  // 0 and no name where the system keeps them from us: not our process
    std::string name;   // the process's, 15 characters at most
};

/// Who takes connections to 127.0.0.1 at this port; nothing when nobody does. Any thread; takes as
/// long as looking through the person's processes does, and only where somebody listens.
std::optional<Port_Owner> owner_of_port(std::uint16_t port);

/// The tool's server, which keeps forwards of earlier runs: known by its name, or by the port of
/// its own that it listens on (which the environment may have moved).
bool is_adb(const Port_Owner& owner);

/// One sentence that says what to do about a port that another program than adb has, for the
/// person to read; empty while all is well. Any thread.
std::string trouble_with_port(std::uint16_t port);

}  // namespace velk
