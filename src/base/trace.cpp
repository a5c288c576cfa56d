#include "base/trace.h"

#include <syslog.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string_view>

namespace velk {

namespace {

constexpr std::size_t longest_line = 400;      // bytes
constexpr std::size_t longest_message = 1000;  // bytes; of the program's own words alone

/// The last lines in a ring. A line that has gone leaves its memory to one that comes.
class Kept_Lines {
  public:
    void add(std::string_view text) {
        const std::lock_guard lock(mutex_);
        add_locked(text);
    }
    /// As a line of its own, whatever has been begun before.
    void add_line(std::string_view text) {
        const std::lock_guard lock(mutex_);
        if (!lines_[last_].empty()) begin_line();
        add_locked(text);
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
    void add_locked(std::string_view text) {
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

/// A message as it is kept; cut where it is too long.
class Message {
  public:
    Message(const char* format, va_list arguments) {
        const int length = std::vsnprintf(text_.data(), text_.size(), format, arguments);
        length_ = std::min(static_cast<std::size_t>(std::max(length, 0)), text_.size() - 1);
    }
    std::string_view text() const { return {text_.data(), length_}; }

  private:
    std::array<char, longest_message> text_;
    std::size_t length_ = 0;
};

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

void tracing::keep(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    kept().add(Message(format, arguments).text());
    va_end(arguments);
}

void tracing::keep_line(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    kept().add_line(Message(format, arguments).text());
    va_end(arguments);
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
