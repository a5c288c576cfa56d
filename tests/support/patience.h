// How long the tests wait for what must come.
#pragma once

#include <chrono>

namespace velk {

/// Far longer than anything takes, so that only what never comes fails a test.
inline constexpr std::chrono::seconds longer_than_needed{60};

}  // namespace velk
