#pragma once

#include <string>

namespace velk {

/// Small tools that many places need. No state; any thread.
class often_tools_function {
  public:
    /// The local time now, as "2026-03-09 17:04:59".
    static std::string get_current_date_time();
};

}  // namespace velk
