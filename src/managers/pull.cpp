#include "managers/pull.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <system_error>

#include "base/file.h"
#include "bridge/adb_command.h"

namespace velk {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longest_name = 255;      // in bytes, on every common disk
constexpr std::size_t longest_extension = 32;  // what is longer is no extension

/// The name that a file of the phone has here; empty when it can have none. The tool would take a
/// path with a leading dash for an option, and then put the copy somewhere else.
std::string name_of(const std::string& phone_path) {
    std::string name = phone_path.substr(phone_path.rfind('/') + 1);
    const bool usable = name != "." && name != ".." && !phone_path.starts_with('-');
    return usable ? name : "";
}

bool is_there(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// Renames, unless something bears the new name: then this gives false, errno being EEXIST.
bool rename_to_free(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL) return false;
    // A disk that cannot look and rename at once.
    if (is_there(to)) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.c_str(), to.c_str()) == 0;
}

/// "photo.jpg" with 2 becomes "photo (2).jpg". A long name loses its end, whole letters of it.
std::string numbered(const fs::path& name, int number) {
    std::string extension = name.extension().string();
    if (extension.size() > longest_extension) extension.clear();
    std::string stem = name.string();
    stem.resize(stem.size() - extension.size());
    const std::string end = " (" + std::to_string(number) + ")" + extension;
    std::size_t length = std::min(stem.size(), longest_name - end.size());
    const auto is_cut_letter = [&] {
        return length < stem.size() && (static_cast<unsigned char>(stem[length]) & 0xC0) == 0x80;
    };
    while (length > 1 && is_cut_letter()) --length;
    return stem.substr(0, length) + end;
}

/// Gives it the first name like this that is free.
bool rename_to_numbered(const fs::path& from, const fs::path& file) {
    for (int number = 2;; ++number) {
        if (rename_to_free(from, file.parent_path() / numbered(file.filename(), number)))
            return true;
        if (errno != EEXIST) return false;
    }
}

/// What bears a name is out of its way as long as this lives.
class Moved_Aside {
  public:
    explicit Moved_Aside(const fs::path& file) : file_(file) {
        if (!is_there(file)) return;
        do {
            aside_ = file.parent_path() / hidden_name();
            if (rename_to_free(file, aside_)) return;
        } while (errno == EEXIST);
        aside_.clear();
        stuck_ = true;
    }
    ~Moved_Aside() {
        // Should another program have taken the name meanwhile, the file must be seen all the same.
        if (moved() && !rename_to_free(aside_, file_)) rename_to_numbered(aside_, file_);
    }
    /// Puts it in the place of what a pull has left, in one step: it must not stay hidden when the
    /// program is ended meanwhile. False when that is a folder, or when nothing was moved.
    bool replace_what_is_left() {
        if (!moved() || ::rename(aside_.c_str(), file_.c_str()) != 0) return false;
        aside_.clear();
        return true;
    }
    Moved_Aside(const Moved_Aside&) = delete;
    Moved_Aside& operator=(const Moved_Aside&) = delete;

    bool moved() const { return !aside_.empty(); }
    /// It cannot be moved; errno says why, at first.
    bool stuck() const { return stuck_; }

  private:
    fs::path file_;
    fs::path aside_;
    bool stuck_ = false;
};

}  // namespace

Outcome pull_into_folder(Desktop& desktop, const Phone_Tool& tool, const std::string& phone_path,
                         const std::string& folder) {
    // Two sections may be copying files of one name into one folder.
    static std::mutex one_at_a_time;
    const std::lock_guard lock(one_at_a_time);
    const std::string name = name_of(phone_path);
    std::error_code error;
    if (name.empty()) return {.good = false, .reason = "The phone gives that file no name."};
    if (!fs::is_directory(folder, error))
        return {.good = false, .reason = "That folder is not there."};
    const fs::path file = fs::path(folder) / name;
    Moved_Aside old(file);
    if (old.stuck()) return {.good = false, .reason = system_reason(errno)};

    bool cut_off = false;
    const std::string printed =
        ADB_Command().Pull_File_To_Computer(tool.path, tool.serial, phone_path, folder, &cut_off);
    Outcome pulled{
        .good = printed.empty() && !cut_off && !desktop.closing(),
        .reason = cut_off && printed.empty() ? "The copy was cut off." : last_line(printed)};
    if (pulled.good && !is_there(file))
        pulled.reason = "The file did not arrive.";
    else if (pulled.good && old.moved() && !rename_to_numbered(file, file))
        pulled = {.good = false, .reason = system_reason(errno)};
    if (!pulled.good && !old.replace_what_is_left()) fs::remove_all(file, error);
    return pulled;
}

}  // namespace velk
