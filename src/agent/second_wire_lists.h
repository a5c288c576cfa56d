// The phone's lists as they come on the second wire.
#pragma once

#include <string>
#include <vector>

#include "agent/sock_apk.h"

namespace velk {

/// Asks for the list of such records and appends what came. Gives the reason why some are missing,
/// empty when all are there. Worker; blocks until the phone has answered. Defined for the seven
/// record types of sock_apk.
///
/// A NUL in a text becomes U+FFFD: what reads these records takes a text to end at its first NUL.
template <class Record>
std::string list_on_second_wire(std::vector<Record>& records);

}  // namespace velk
