// The program's command line.
#pragma once

#include <optional>
#include <string>

#include "demo_phone/demo_data.h"
#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_server.h"

namespace velk {

struct Phone_Options {
    Phone_Places places{5585, 0, ""};  // an odd port that an adb server finds by itself
    Phone_Settings settings;
    Phone_Behaviour behaviour;
    Demo_Amounts amounts;
    std::string storage;  // a folder; empty: one of its own for the time it runs
    std::string log;      // a file; empty: none
    std::string tell_path;
    std::string tell_line;
    bool help = false;
    bool version = false;
};

/// Nothing, with the reason on standard error, when the words make no sense.
std::optional<Phone_Options> read_options(int count, char** words);

std::string phone_help();

}  // namespace velk
