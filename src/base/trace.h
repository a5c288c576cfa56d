// The program's running trace. Any thread may call; all of it is cheap and never fails.
//
// Each line is printed as it is and, beside that, the last lines are kept in a form that may be
// shown to anybody: there "***" stands for every text that the call has not marked as plain().
#pragma once

#include <concepts>
#include <initializer_list>
#include <string>
#include <type_traits>

#include "base/trace_format.h"

namespace velk {

/// A text that tells nothing of a person, a phone or a computer: the program's own words, or what
/// it has made of a number. Never what comes from outside.
struct Plain {
    const char* text;
};
inline Plain plain(const char* text) {
    return {text};
}
inline Plain plain(const std::string& text) {
    return {text.c_str()};
}

// How an argument goes to the C library: as it is, and for everybody's eyes.
namespace tracing {

inline const char* whole(const char* text) {
    return text;
}
inline const char* whole(const std::string& text) {
    return text.c_str();
}
inline const char* whole(Plain words) {
    return words.text;
}
template <std::integral Number>
Number whole(Number number) {
    return number;
}

/// An argument as it is kept.
struct Shown {
    const char* text = nullptr;  // none: a number
    long number = 0;
};
template <class Argument>
Shown masked(const Argument& argument) {
    if constexpr (std::is_integral_v<Argument>)
        return {.number = static_cast<long>(argument)};
    else
        return {.text = "***"};
}
inline Shown masked(Plain words) {
    return {.text = words.text};
}

void print(const char* format, ...);
void print_to_log(const char* format, ...);
void keep(const char* format, std::initializer_list<Shown> arguments);
void keep_line(const char* format, std::initializer_list<Shown> arguments);

}  // namespace tracing

/// Writes to standard output, as printf does. Standard output is block-buffered when it is not a
/// terminal, so a trace line costs no system call; flush_trace() is called when the program ends.
/// The format is known to the compiler, which checks it against the arguments.
template <class... Arguments>
void trace(std::type_identity_t<Trace_Format<Arguments...>> format, const Arguments&... arguments) {
    tracing::print(format.text(), tracing::whole(arguments)...);
    tracing::keep(format.text(), {tracing::masked(arguments)...});
}

/// One line for the system log, which also shows on standard error.
template <class... Arguments>
void log_line(std::type_identity_t<Trace_Format<Arguments...>> format,
              const Arguments&... arguments) {
    tracing::print_to_log(format.text(), tracing::whole(arguments)...);
    tracing::keep_line(format.text(), {tracing::masked(arguments)...});
}

/// Hands what trace() has gathered to the system.
void flush_trace();

/// A request's bytes, one line each: "(index) value:'character'", behind a line with their number.
/// That line alone is kept: masked, the others would tell nothing and push out what does.
void trace_request(const std::string& request);

inline constexpr int most_lines_kept = 500;
/// The last lines of trace() and log_line() together, oldest first, without anything private. A
/// line that is far too long is cut.
std::string masked_trace();

}  // namespace velk
