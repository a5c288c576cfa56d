#include "base/file.h"

#include <fcntl.h>
#include <locale.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "base/descriptor.h"
#include "base/text.h"

namespace velk {

namespace {

// Of a new file, less the umask.
constexpr mode_t mode_for_all = 0666;
constexpr mode_t mode_for_the_owner = 0600;
constexpr mode_t mode_bits = 07777;
constexpr int most_links = 40;  // the kernel's own limit for one path

/// The place that the symbolic links at `path` lead to, whether or not something is there.
std::filesystem::path behind_links(std::filesystem::path path) {
    std::error_code error;
    for (int i = 0; i < most_links && std::filesystem::is_symlink(path, error); ++i)
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    return path;
}

bool write_all(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = ::write(file, content.data(), content.size());
        if (count == 0) errno = EIO;
        if (count == 0 || (count < 0 && errno != EINTR)) return false;
        if (count > 0) content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// A new hidden file in `folder`, whose name is put into `name`; -1 and no name when none can be
/// made.
int make_hidden_file(const std::filesystem::path& folder, mode_t mode,
                     std::filesystem::path& name) {
    int file = -1;
    do {
        name = folder / hidden_name();
        file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    } while (file < 0 && errno == EEXIST);
    if (file < 0) name.clear();
    return file;
}

/// Writes a file beside the target and puts it in the target's place.
class Replacement {
  public:
    explicit Replacement(const std::filesystem::path& target, mode_t mode = mode_for_all)
        : target_(target), file_(make_hidden_file(target.parent_path(), mode, name_)) {}
    ~Replacement() {
        const int reason = errno;
        if (!name_.empty()) ::unlink(name_.c_str());
        errno = reason;
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    bool possible() const { return file_.is_open(); }
    /// False where the disk or its owner does not let the new file be like the old one.
    bool resemble(const struct stat& before) {
        return ::fchown(file_.number(), before.st_uid, before.st_gid) == 0 &&
               ::fchmod(file_.number(), before.st_mode & mode_bits) == 0;
    }
    bool write(std::string_view content) {
        return write_all(file_.number(), content) && ::fsync(file_.number()) == 0 && file_.close();
    }
    bool put_in_place() {
        if (::rename(name_.c_str(), target_.c_str()) != 0) return false;
        name_.clear();
        return true;
    }

  private:
    std::filesystem::path target_;
    std::filesystem::path name_;  // while the file stands there
    Descriptor file_;
};

/// Makes sure of the room before the first byte is overwritten, where the disk can tell.
bool have_room(int file, std::size_t size, const struct stat& before) {
    if (static_cast<off_t>(size) <= before.st_size) return true;
    const int error = ::posix_fallocate(file, 0, static_cast<off_t>(size));
    if (error == 0 || error == EOPNOTSUPP || error == EBADF || error == EINVAL) return true;
    if (::ftruncate(file, before.st_size) == 0) errno = error;
    return false;
}

int open_in_place(const std::filesystem::path& target, const struct stat& before) {
    // Where the disk cannot set room aside, the C library reads to find out what is missing.
    const int file = S_ISREG(before.st_mode) ? ::open(target.c_str(), O_RDWR | O_CLOEXEC) : -1;
    // A pipe that nobody reads must not hold the caller; one that is read may take its time.
    return file >= 0 ? file : ::open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
}

bool write_in_place(const std::filesystem::path& target, std::string_view content,
                    const struct stat& before) {
    Descriptor file(open_in_place(target, before));
    if (!file.is_open() || ::fcntl(file.number(), F_SETFL, 0) != 0) return false;
    if (!S_ISREG(before.st_mode)) return write_all(file.number(), content);
    return have_room(file.number(), content.size(), before) && write_all(file.number(), content) &&
           ::ftruncate(file.number(), static_cast<off_t>(content.size())) == 0 &&
           ::fsync(file.number()) == 0 && file.close();
}

bool write_new(const std::filesystem::path& target, std::string_view content,
               mode_t mode = mode_for_all) {
    Replacement file(target, mode);
    return file.possible() && file.write(content) && file.put_in_place();
}

bool write_over(const std::filesystem::path& target, std::string_view content,
                const struct stat& before) {
    if (S_ISREG(before.st_mode) && before.st_nlink == 1) {
        Replacement file(target);
        if (file.possible() && file.resemble(before)) {
            if (!file.write(content)) return false;
            if (file.put_in_place()) return true;
        }
    }
    return write_in_place(target, content, before);
}

}  // namespace

std::string write_whole_file(const std::string& path, std::string_view content, Readers readers) {
    if (path.empty()) return system_reason(ENOENT);
    const std::filesystem::path target = behind_links(path);
    struct stat found {};
    const bool is_there = ::stat(target.c_str(), &found) == 0;
    if (!is_there && errno != ENOENT) return system_reason(errno);
    if (is_there && S_ISDIR(found.st_mode)) return system_reason(EISDIR);
    // Whoever may change the folder could replace a file that says it must not be written.
    if (is_there && ::access(target.c_str(), W_OK) != 0) return system_reason(errno);
    if (readers == Readers::owner) {
        if (is_there && !S_ISREG(found.st_mode)) return system_reason(EINVAL);
        return write_new(target, content, mode_for_the_owner) ? "" : system_reason(errno);
    }
    const bool done = is_there ? write_over(target, content, found) : write_new(target, content);
    return done ? "" : system_reason(errno);
}

std::string system_reason(int error) {
    static const locale_t english = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strerror_l(error, english);
}

std::string hidden_name() {
    static std::atomic<unsigned> made{0};
    return format(".velk-%d-%u", static_cast<int>(::getpid()), made++);
}

std::optional<std::string> read_whole_file(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat found {};
    if (!file.is_open() || ::fstat(file.number(), &found) != 0 || !S_ISREG(found.st_mode) ||
        found.st_size > static_cast<off_t>(most_bytes_read))
        return std::nullopt;
    std::string content;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
        if (count == 0) return content;
        if (count < 0 && errno != EINTR) return std::nullopt;
        if (count > 0) content.append(buffer.data(), static_cast<std::size_t>(count));
        if (content.size() > most_bytes_read) return std::nullopt;
    }
}

}  // namespace velk
