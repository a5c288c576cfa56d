// Where a measurement's figures go, while the program's own traces go nowhere.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace velk {

/// What standard output was at first. The first call turns standard output and error away.
inline std::FILE* figures() {
    static std::FILE* const file = [] {
        std::FILE* const output = ::fdopen(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3), "w");
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        ::close(nowhere);
        std::setvbuf(output, nullptr, _IOLBF, BUFSIZ);
        return output;
    }();
    return file;
}

}  // namespace velk
