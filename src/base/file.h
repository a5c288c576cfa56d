// Whole files. Any thread; both may take as long as the disk does.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velk {

/// Who may read a file that is written: as for the one that stood there, or its owner alone (0600).
enum class Readers { as_before, owner };

/// Makes `content` the file's content. Gives "" on success, else the system's reason in a few
/// English words.
///
/// A file that stood there is replaced only once its new content is safe on the disk, and keeps its
/// mode and owner; a symbolic link goes on naming its target. Where it cannot be replaced (its
/// folder takes no file, it has several names, it is a device, the disk keeps no owner or mode or
/// does not let this person give them to a new file) it is written in place: not before the disk
/// has room for all of it, as far as the disk can tell.
///
/// A file that is for its owner alone is a new one in any case, which takes the place of the old:
/// at no time could others read it.
std::string write_whole_file(const std::string& path, std::string_view content,
                             Readers readers = Readers::as_before);

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
