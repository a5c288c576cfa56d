// The arithmetic of the device summary.
#pragma once

#include <string>

namespace velk {

/// What a gauge shows for a quotient that is no number: the most negative 32-bit integer, drawn
/// as an empty gauge.
inline constexpr int gauge_without_value = -2147483647 - 1;

/// Steps of the battery gauge, 1 to 5, for a charge in per cent as text.
int battery_steps(const std::string& per_cent);

/// total / (total + free) in per cent, truncated.
int storage_gauge(double total, double free);

/// "5,000,000,000 bytes" for a text that starts with a number, else empty. The number is as long
/// as the phone sent it: this is how a person sees the size that 32 bits cannot hold.
std::string exact_bytes(const std::string& decimal);

}  // namespace velk
