#include "base/trace.h"

#include <syslog.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string_view>

namespace velk {

namespace {

constexpr std::size_t longest_line = 400;  // bytes

using tracing::Shown;

/// The last lines in a ring. A line that has gone leaves its memory to one that comes.
class Kept_Lines {
  public:
    void add(const char* format, const Shown* next_argument) {
        const std::lock_guard lock(mutex_);
        add_formatted(format, next_argument);
    }
    /// As a line of its own, whatever has been begun before.
    void add_line(const char* format, const Shown* next_argument) {
        const std::lock_guard lock(mutex_);
        if (!lines_[last_].empty()) begin_line();
        add_formatted(format, next_argument);
        if (!lines_[last_].empty()) begin_line();
    }
    std::string all() {
        const std::lock_guard lock(mutex_);
        std::string text;
        for (std::size_t back = count_; back > 0; --back)
            text += lines_[(last_ + lines_.size() - back) % lines_.size()] + "\n";
        return lines_[last_].empty() ? text : text + lines_[last_] + "\n";
    }

  private:
    // Many thousand traces may come in a second: the C library would take longer for each.
    void add_formatted(std::string_view format, const Shown* next_argument) {
        for (;;) {
            const std::size_t mark = std::min(format.find('%'), format.size());
            add_text(format.substr(0, mark));
            if (mark == format.size()) return;
            const std::size_t letter = format.find_first_not_of("0123456789l", mark + 1);
            if (format[letter] == '%')
                add_text("%");
            else if (format[letter] == 's')
                add_text((next_argument++)->text);
            else
                add_number((next_argument++)->number, format.substr(mark + 1, letter - mark));
            format.remove_prefix(letter + 1);
        }
    }
    /// `conversion` is its width, if it has one, and its letter. Zeros fill the width.
    void add_number(long number, std::string_view conversion) {
        std::array<char, 24> digits{};  // 64 bits have 20 digits
        std::size_t width = 0;
        std::from_chars(conversion.begin(), conversion.end(), width);
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                              conversion.ends_with('x') ? 16 : 10)
                                    .ptr;
        const auto length = static_cast<std::size_t>(end - digits.data());
        add_text(std::string(width - std::min(width, length), '0'));
        add_text({digits.data(), length});
    }
    void add_text(std::string_view text) {
        for (;;) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            std::string& line = lines_[last_];
            line += text.substr(0, std::min(end, longest_line - line.size()));
            if (end == text.size()) return;
            begin_line();
            text.remove_prefix(end + 1);
        }
    }
    void begin_line() {
        last_ = (last_ + 1) % lines_.size();
        lines_[last_].clear();
        count_ = std::min(count_ + 1, lines_.size() - 1);
    }

    std::mutex mutex_;
    std::array<std::string, most_lines_kept + 1> lines_;  // and the one that is being written
    std::size_t last_ = 0;                                // that one
    std::size_t count_ = 0;                               // of those that have ended
};

Kept_Lines& kept() {
    static Kept_Lines lines;
    return lines;
}

}  // namespace

void tracing::print(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
}

void tracing::print_to_log(const char* format, ...) {
    static const bool opened = (openlog("velk", LOG_PERROR | LOG_PID, LOG_USER), true);
    static_cast<void>(opened);
    va_list arguments;
    va_start(arguments, format);
    vsyslog(LOG_INFO, format, arguments);
    va_end(arguments);
}

void tracing::keep(const char* format, std::initializer_list<Shown> arguments) {
    kept().add(format, arguments.begin());
}

void tracing::keep_line(const char* format, std::initializer_list<Shown> arguments) {
    kept().add_line(format, arguments.begin());
}

void flush_trace() {
    std::fflush(stdout);
}

void trace_request(const std::string& request) {
    trace("text_command len=%d\n", static_cast<int>(request.size()));
    for (std::size_t i = 0; i < request.size(); ++i)
        std::printf("(%d) %d:'%c'\n", static_cast<int>(i), request[i], request[i]);
}

std::string masked_trace() {
    return kept().all();
}

}  // namespace velk
