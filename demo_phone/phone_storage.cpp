#include "demo_phone/phone_storage.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <utility>

namespace velk {

namespace fs = std::filesystem;

namespace {

constexpr const char* phone_folders[] = {"/data/local/tmp", "/sdcard"};
/// Other names under which phones show the card.
constexpr std::string_view card_names[] = {"/mnt/sdcard", "/storage/emulated/0",
                                           "/storage/sdcard0"};

fs::path make_temporary_folder() {
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "demo_phone.XXXXXX").string();
    return error || !mkdtemp(name.data()) ? fs::path() : fs::path(name);
}

bool starts_with_folder(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

Phone_File facts_of(const fs::path& file) {
    struct stat status {};
    if (lstat(file.c_str(), &status) != 0) return {};
    if (!S_ISDIR(status.st_mode) && !S_ISREG(status.st_mode)) return {};
    return {file.filename().string(), status.st_mode, static_cast<std::uint64_t>(status.st_size),
            static_cast<std::uint32_t>(status.st_mtime)};
}

}  // namespace

bool Phone_File::is_folder() const {
    return S_ISDIR(mode);
}

bool Phone_File::is_file() const {
    return S_ISREG(mode);
}

std::string plain_phone_path(std::string_view phone_path) {
    std::vector<std::string> parts;
    for (const fs::path& part : fs::path(phone_path).relative_path()) {
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part.string());
        }
    }
    std::string plain;
    for (const std::string& part : parts) plain += "/" + part;
    for (const std::string_view card : card_names)
        if (starts_with_folder(plain, card)) return "/sdcard" + plain.substr(card.size());
    return plain.empty() ? "/" : plain;
}

std::unique_ptr<Phone_Storage> Phone_Storage::open(const std::string& folder) {
    std::error_code error;
    const fs::path root = folder.empty() ? make_temporary_folder() : fs::path(folder);
    if (root.empty()) return nullptr;
    fs::create_directories(root, error);
    const fs::path real_root = fs::canonical(root, error);
    if (error) return nullptr;
    std::unique_ptr<Phone_Storage> storage(new Phone_Storage(real_root, folder.empty()));
    for (const char* needed : phone_folders)
        if (!storage->make_folders(needed)) return nullptr;
    return storage;
}

Phone_Storage::Phone_Storage(fs::path root, bool temporary)
    : root_(std::move(root)), temporary_(temporary) {}

Phone_Storage::~Phone_Storage() {
    std::error_code ignored;
    if (temporary_) fs::remove_all(root_, ignored);
}

std::optional<fs::path> Phone_Storage::real_path(std::string_view phone_path) const {
    if (phone_path.find('\0') != std::string_view::npos) return std::nullopt;
    std::error_code error;
    const fs::path path = root_ / plain_phone_path(phone_path).substr(1);
    // A link inside a folder that a person gave must not lead out of it either.
    const fs::path resolved = fs::weakly_canonical(path, error);
    if (error || !starts_with_folder(resolved.string(), root_.string())) return std::nullopt;
    return path;
}

Phone_File Phone_Storage::facts(std::string_view phone_path) const {
    const auto path = real_path(phone_path);
    return path ? facts_of(*path) : Phone_File{};
}

std::vector<Phone_File> Phone_Storage::list(std::string_view phone_path) const {
    std::vector<Phone_File> files;
    const auto path = real_path(phone_path);
    if (!path) return files;
    std::error_code error;
    for (fs::directory_iterator entry(*path, error), end; !error && entry != end;
         entry.increment(error))
        if (Phone_File file = facts_of(entry->path()); file.mode != 0)
            files.push_back(std::move(file));
    std::sort(files.begin(), files.end(),
              [](const Phone_File& one, const Phone_File& other) { return one.name < other.name; });
    return files;
}

std::vector<std::string> Phone_Storage::files_below(std::string_view phone_path) const {
    const std::string folder = plain_phone_path(phone_path);
    std::vector<std::string> paths;
    for (const Phone_File& file : list(folder)) {
        const std::string path = folder + "/" + file.name;
        if (file.is_file()) paths.push_back(path);
        if (!file.is_folder()) continue;
        for (std::string& below : files_below(path)) paths.push_back(std::move(below));
    }
    return paths;
}

bool Phone_Storage::make_folders(std::string_view phone_path) {
    const auto path = real_path(phone_path);
    if (!path) return false;
    std::error_code error;
    fs::create_directories(*path, error);
    return !error && fs::is_directory(*path, error);
}

bool Phone_Storage::write(std::string_view phone_path, std::string_view bytes) {
    const std::string plain = plain_phone_path(phone_path);
    const auto path = real_path(plain);
    if (!path || !make_folders(plain.substr(0, plain.rfind('/')))) return false;
    std::ofstream file(*path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}

bool Phone_Storage::set_time(std::string_view phone_path, std::uint32_t time) {
    const auto path = real_path(phone_path);
    const struct timespec times[2] = {{time, 0}, {time, 0}};
    return path && utimensat(AT_FDCWD, path->c_str(), times, AT_SYMLINK_NOFOLLOW) == 0;
}

bool Phone_Storage::remove(std::string_view phone_path, bool whole_folder) {
    const auto path = real_path(phone_path);
    if (!path || plain_phone_path(phone_path) == "/") return false;
    std::error_code error;
    const bool removed = whole_folder ? fs::remove_all(*path, error) > 0 : fs::remove(*path, error);
    return removed && !error;
}

std::uint64_t Phone_Storage::used_bytes(const std::string& folder) const {
    std::uint64_t sum = 0;
    for (const Phone_File& file : list(folder))
        sum += file.is_folder() ? used_bytes(folder + "/" + file.name) : file.size;
    return sum;
}

}  // namespace velk
