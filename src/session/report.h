// What a person can send along with the report of a bug: facts in, text out.
#pragma once

#include <string>

#include "session/trouble_shooter.h"

namespace velk {

struct Report_Facts {
    std::string toolkit = {};      // its name and version
    std::string system = {};       // the same
    std::string adb_version = {};  // as the tool printed it
    Trouble_Facts trouble = {};
    std::string masked_trace = {};
};

/// The report. It names no person, phone, file or folder, whatever the facts do. Any thread.
std::string report_text(const Report_Facts& facts);

}  // namespace velk
