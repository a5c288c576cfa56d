// What the programs share that count how many of many lists come in whole, on both wires.
#pragma once

#include <chrono>
#include <cstdio>

#include "agent/wire_choice.h"

/// Fetches a list `tries` times and prints how many were whole and the time that one took.
/// `is_whole` fetches it and compares it with what the demo phone holds.
template <class Is_Whole>
void count_on_this_wire(const char* what, int tries, const Is_Whole& is_whole) {
    int whole = 0;
    const auto begun = std::chrono::steady_clock::now();
    for (int i = 0; i < tries; ++i) whole += is_whole() ? 1 : 0;
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begun;
    std::fprintf(stderr, "%s wire: %d of %d %s whole, %.1f ms a list\n",
                 velk::second_wire_in_use() ? "second" : "first", whole, tries, what,
                 took.count() / tries);
}

/// The same on the first wire, and on the second where the agent speaks it.
template <class Is_Whole>
void count_whole(const char* what, int tries, const Is_Whole& is_whole) {
    velk::use_first_wire();
    count_on_this_wire(what, tries, is_whole);
    velk::choose_wire();
    if (velk::second_wire_in_use()) count_on_this_wire(what, tries, is_whole);
}
