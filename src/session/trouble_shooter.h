// What stands between Velk and a phone: facts in, one sentence out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "session/usb_monitor.h"

namespace velk {

struct Trouble_Facts {
    /// The last attempt has reached the phone.
    bool connected = false;
    /// What the last attempt's "devices" printed; nothing before the first has ended.
    std::optional<std::string> adb_answer = {};
    /// A phone that was on the bus when adb answered has gone.
    bool bus_has_changed = false;
    std::vector<Usb_Phone> phones = {};
    bool agent_package_is_there = true;
    std::string agent_package = {};  // its file name
    std::string directory = {};      // where it belongs
};

/// The first thing that has to be put right, in a sentence for the person: the computer's own
/// troubles first, then those of the phone. Empty when there is none. Any thread.
std::string what_to_put_right(const Trouble_Facts& facts);

}  // namespace velk
