// Numbers as the lists show them.
#pragma once

#include <cstdint>
#include <string>

namespace velk {

/// "1.50 GB".
std::string shown_size(double bytes);

/// "01:02:05".
std::string shown_time(std::int64_t milliseconds);

}  // namespace velk
