#include "base/trace.h"

#include <syslog.h>

#include <cstdarg>
#include <cstdio>

namespace velk {

void trace(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
}

void log_line(const char* format, ...) {
    static const bool opened = (openlog("velk", LOG_PERROR | LOG_PID, LOG_USER), true);
    static_cast<void>(opened);
    va_list arguments;
    va_start(arguments, format);
    vsyslog(LOG_INFO, format, arguments);
    va_end(arguments);
}

void flush_trace() {
    std::fflush(stdout);
}

void trace_request(const std::string& request) {
    trace("text_command len=%d\n", static_cast<int>(request.size()));
    for (std::size_t i = 0; i < request.size(); ++i)
        trace("(%d) %d:'%c'\n", static_cast<int>(i), request[i], request[i]);
}

}  // namespace velk
