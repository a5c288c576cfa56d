// The words with which a running phone is steered.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"

namespace velk {

/// What steering needs beside the phone itself.
class Phone_Cable {
  public:
    virtual ~Phone_Cable() = default;
    /// Listens for the computer and announces itself; false when the port is taken.
    virtual bool plug() = 0;
    /// Closes every connection and listens no more.
    virtual void unplug() = 0;
    virtual bool plugged() const = 0;
    virtual int port() const = 0;
    virtual void quit() = 0;
};

/// Carries out one command line. The answer ends in a line "ok", or in one that begins "error".
std::string control(Demo_Phone& phone, Phone_Cable& cable, std::string_view line);

/// The lines of --help about the commands.
std::string_view control_help();

/// Sends `line` to the phone that listens on the socket `path`; its answer, nothing when no phone
/// can be reached.
std::optional<std::string> ask_phone(const std::string& path, const std::string& line);

/// True when the answer says that the command was carried out.
bool is_good(std::string_view answer);

/// Sends `line` to the phone that listens on the socket `path` and prints its answer: the exit
/// status, 0 when the answer was "ok".
int tell_phone(const std::string& path, const std::string& line);

}  // namespace velk
