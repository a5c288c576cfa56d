// One call of the launcher, with its two streams apart.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "bridge/child_process.h"

namespace velk {

struct Launched {
    std::string output;
    std::string errors;
    int status = -1;
};

/// Sets a variable of the environment while it lives; nullptr takes it out.
class Environment_Setting {
  public:
    Environment_Setting(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name)) {
            before_ = before;
            was_set_ = true;
        }
        set(value);
    }
    Environment_Setting(const char* name, const std::string& value)
        : Environment_Setting(name, value.c_str()) {}
    ~Environment_Setting() { set(was_set_ ? before_.c_str() : nullptr); }
    Environment_Setting(const Environment_Setting&) = delete;
    Environment_Setting& operator=(const Environment_Setting&) = delete;

  private:
    void set(const char* value) {
        if (value == nullptr)
            unsetenv(name_);
        else
            setenv(name_, value, 1);
    }

    const char* name_;
    std::string before_;
    bool was_set_ = false;
};

/// Runs the launcher with these arguments; `input` is its standard input.
inline Launched launch(const std::vector<std::string>& arguments, const std::string& input = {},
                       const std::string& launcher = VELK_LAUNCHER) {
    std::string folder = (std::filesystem::temp_directory_path() / "launched.XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) std::abort();
    std::ofstream(folder + "/in", std::ios::binary) << input;
    std::vector<std::string> words{
        "/bin/sh", "-c", "files=$0; exec \"$@\" <\"$files/in\" 2>\"$files/err\"", folder, launcher};
    words.insert(words.end(), arguments.begin(), arguments.end());
    Launched launched;
    launched.status =
        run_child({.words = words}, [&](std::string_view piece) { launched.output += piece; });
    std::ifstream errors(folder + "/err", std::ios::binary);
    launched.errors.assign(std::istreambuf_iterator<char>(errors), {});
    std::filesystem::remove_all(folder);
    return launched;
}

}  // namespace velk
