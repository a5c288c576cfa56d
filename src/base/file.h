// Whole files. Any thread; both may take as long as the disk does.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velk {

/// Makes `content` the file's content. Gives "" on success, else the system's reason in a few
/// words.
///
/// A file that stood there is replaced only once its new content is safe on the disk, and keeps its
/// mode; a symbolic link goes on naming its target. Where it cannot be replaced (its folder takes
/// no file, it has several names, it is a device) it is written in place.
std::string write_whole_file(const std::string& path, std::string_view content);

/// The content of a regular file; nothing when it is missing, something else or not readable.
std::optional<std::string> read_whole_file(const std::string& path);

}  // namespace velk
