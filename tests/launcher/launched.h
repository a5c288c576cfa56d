// One call of the launcher, with its two streams apart.
#pragma once

#include <unistd.h>

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

using Words = std::vector<std::string>;

/// Runs the launcher with these settings of the environment ("NAME=value") and these arguments.
inline Launched launch(const Words& environment, const Words& arguments,
                       const std::string& launcher = VELK_LAUNCHER) {
    std::string file = (std::filesystem::temp_directory_path() / "errors.XXXXXX").string();
    close(mkstemp(file.data()));
    Words words{"/bin/sh", "-c", "exec /usr/bin/env \"$@\" 2>\"$0\"", file};
    words.insert(words.end(), environment.begin(), environment.end());
    words.push_back(launcher);
    words.insert(words.end(), arguments.begin(), arguments.end());
    Launched launched;
    launched.status =
        run_child({.words = words}, [&](std::string_view piece) { launched.output += piece; });
    std::ifstream errors(file, std::ios::binary);
    launched.errors.assign(std::istreambuf_iterator<char>(errors), {});
    std::filesystem::remove(file);
    return launched;
}

}  // namespace velk
