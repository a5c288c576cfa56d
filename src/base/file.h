// Whole files. Any thread; both may take as long as the disk does.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velk {

/// Makes `content` the file's content. Gives "" on success, else the system's reason in a few
/// English words.
///
/// A file that stood there is replaced only once its new content is safe on the disk, and keeps its
/// mode and owner; a symbolic link goes on naming its target. Where it cannot be replaced (its
/// folder takes no file, it has several names, it is a device, the disk keeps no owner or mode or
/// does not let this person give them to a new file) it is written in place: not before the disk
/// has room for all of it, as far as the disk can tell.
std::string write_whole_file(const std::string& path, std::string_view content);

/// The system's reason for an error number in the window's language, whatever the person's is.
std::string system_reason(int error);

/// A file name that no other file of this program bears, for what stands beside another file for a
/// while. Hidden, and short enough for every disk.
std::string hidden_name();

/// A file that is larger counts as not readable: what people exchange is far smaller.
inline constexpr std::size_t most_bytes_read = std::size_t{1} << 30;

/// The content of a regular file; nothing when it is missing, something else or not readable.
std::optional<std::string> read_whole_file(const std::string& path);

}  // namespace velk
