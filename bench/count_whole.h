// What the programs share that count how many of many lists come in whole.
#pragma once

#include <chrono>
#include <cstdio>

/// Fetches a list `tries` times and prints how many were whole and the time that one took.
/// `is_whole` fetches it and compares it with what the demo phone holds.
template <class Is_Whole>
void count_whole(const char* what, int tries, const Is_Whole& is_whole) {
    int whole = 0;
    const auto begun = std::chrono::steady_clock::now();
    for (int i = 0; i < tries; ++i) whole += is_whole() ? 1 : 0;
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begun;
    std::fprintf(stderr, "%d of %d %s whole, %.1f ms a list\n", whole, tries, what,
                 took.count() / tries);
}
