#pragma once

#include <string>

namespace velk {

/// What became of one thing that a command does, be it the only one or one of many.
struct Outcome {
    bool good = true;
    std::string reason = {};  // why it is not, or not as it should be, in a line; may be empty
};

}  // namespace velk
