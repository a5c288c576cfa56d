#include "base/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

#include "base/text.h"

namespace velk {

namespace {

constexpr mode_t mode_of_a_new_file = 0666;  // less the umask
constexpr mode_t mode_bits = 07777;
constexpr int most_links = 40;  // the kernel's own limit for one path

/// Open as long as it lives; -1 when it could not be opened.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    bool is_open() const { return number_ >= 0; }
    /// Closes it: some file systems tell only then that they could not write.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

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
        if (count < 0 && errno != EINTR) return false;
        if (count > 0) content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// A new hidden file in `folder`, whose name is put into `name`; -1 and no name when none can be
/// made.
int make_hidden_file(const std::filesystem::path& folder, std::filesystem::path& name) {
    static std::atomic<unsigned> made{0};
    int file = -1;
    do {
        name = folder / format(".velk-%d-%u", static_cast<int>(::getpid()), made++);
        file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode_of_a_new_file);
    } while (file < 0 && errno == EEXIST);
    if (file < 0) name.clear();
    return file;
}

/// Writes a file beside the target and puts it in the target's place.
class Replacement {
  public:
    explicit Replacement(const std::filesystem::path& target)
        : target_(target), file_(make_hidden_file(target.parent_path(), name_)) {}
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

/// Makes sure of the room before the first byte is overwritten.
bool have_room(int file, std::size_t size, const struct stat& before) {
    if (static_cast<off_t>(size) <= before.st_size) return true;
    const int error = ::posix_fallocate(file, 0, static_cast<off_t>(size));
    if (error == 0) return true;
    if (::ftruncate(file, before.st_size) == 0) errno = error;
    return false;
}

bool write_in_place(const std::filesystem::path& target, std::string_view content,
                    const struct stat& before) {
    // A pipe that nobody reads must not hold the caller; one that is read may take its time.
    Descriptor file(::open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.is_open() || ::fcntl(file.number(), F_SETFL, 0) != 0) return false;
    if (!S_ISREG(before.st_mode)) return write_all(file.number(), content);
    return have_room(file.number(), content.size(), before) && write_all(file.number(), content) &&
           ::ftruncate(file.number(), static_cast<off_t>(content.size())) == 0 &&
           ::fsync(file.number()) == 0 && file.close();
}

bool write_new(const std::filesystem::path& target, std::string_view content) {
    Replacement file(target);
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

std::string write_whole_file(const std::string& path, std::string_view content) {
    if (path.empty()) return std::strerror(ENOENT);
    const std::filesystem::path target = behind_links(path);
    struct stat found {};
    const bool is_there = ::stat(target.c_str(), &found) == 0;
    if (!is_there && errno != ENOENT) return std::strerror(errno);
    if (is_there && S_ISDIR(found.st_mode)) return std::strerror(EISDIR);
    // Whoever may change the folder could replace a file that says it must not be written.
    if (is_there && ::access(target.c_str(), W_OK) != 0) return std::strerror(errno);
    const bool done = is_there ? write_over(target, content, found) : write_new(target, content);
    return done ? "" : std::strerror(errno);
}

std::optional<std::string> read_whole_file(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat found {};
    if (!file.is_open() || ::fstat(file.number(), &found) != 0 || !S_ISREG(found.st_mode))
        return std::nullopt;
    std::string content;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
        if (count == 0) return content;
        if (count < 0 && errno != EINTR) return std::nullopt;
        if (count > 0) content.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

}  // namespace velk
