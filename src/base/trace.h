// The program's running trace. Any thread may call; both are cheap and never fail.
#pragma once

#include <string>

namespace velk {

/// Writes to standard output, as printf does. Standard output is block-buffered when it is not a
/// terminal, so a trace line costs no system call; flush_trace() is called when the program ends.
void trace(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// One line for the system log, which also shows on standard error.
void log_line(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// Hands what trace() has gathered to the system.
void flush_trace();

/// A request's bytes, one line each: "(index) value:'character'", behind a line with their number.
void trace_request(const std::string& request);

}  // namespace velk
