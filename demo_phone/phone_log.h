// What was asked of the phone, one line each, for tests and for people.
#pragma once

#include <cstdio>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace velk {

class Phone_Log {
  public:
    /// Also writes to `file` from now on; false when it cannot be opened.
    bool open(const std::string& file);

    /// A line of a kind ("service", "refused", ...) and a text; control characters become dots.
    void line(std::string_view kind, std::string_view text);
    /// A request of the computer to the agent: its bytes as numbers, then as characters.
    void request(std::string_view bytes);

    /// The latest lines, oldest first.
    std::string recent() const;

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void write(std::string text);

    std::unique_ptr<std::FILE, Closer> file_;
    std::deque<std::string> recent_;
};

}  // namespace velk
