#include "managers/thumbnail_cache.h"

#include <algorithm>
#include <cinttypes>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file.h"
#include "base/text.h"

namespace velk {

namespace {

namespace fs = std::filesystem;

struct Kept_File {
    fs::path path;
    fs::file_time_type used;
    std::uintmax_t bytes;
};

/// FNV-1a, which is the same for every build of the program.
std::uint64_t fnv1a(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return hash;
}

std::vector<Kept_File> files_in(const std::string& folder) {
    std::vector<Kept_File> files;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        std::error_code gone;  // by another window of the program
        const Kept_File kept{file->path(), file->last_write_time(gone), file->file_size(gone)};
        if (!gone) files.push_back(kept);
    }
    return files;
}

}  // namespace

std::string Thumbnail_Cache::key_of(const std::string& serial, const std::string& path,
                                    const std::string& size) {
    constexpr char between = '\0';  // is in none of them
    return format("%016" PRIx64, fnv1a(serial + between + path + between + size));
}

std::optional<std::string> Thumbnail_Cache::find(const std::string& key) {
    const fs::path file = fs::path(folder_) / key;
    std::optional<std::string> content = read_whole_file(file.string());
    std::error_code error;
    if (content) fs::last_write_time(file, fs::file_time_type::clock::now(), error);
    return content;
}

void Thumbnail_Cache::keep(const std::string& key, const std::string& content) {
    if (!has_folder()) return;
    if (!write_whole_file((fs::path(folder_) / key).string(), content, Readers::owner).empty())
        return;
    bytes_ += content.size();
    if (!std::exchange(counted_, true) || bytes_ > limit_) count_and_shrink();
}

std::string Thumbnail_Cache::place_for_a_while() {
    if (!has_folder()) return {};
    std::string path = (fs::path(folder_) / hidden_name()).string();
    return write_whole_file(path, "", Readers::owner).empty() ? path : std::string();
}

bool Thumbnail_Cache::has_folder() {
    std::error_code error;
    const bool is_new = fs::create_directories(folder_, error);
    if (!fs::is_directory(folder_, error)) return false;
    if (std::exchange(tidied_, true) && !is_new) return true;
    fs::permissions(folder_, fs::perms::owner_all,
                    fs::perm_options::replace | fs::perm_options::nofollow, error);
    remove_what_was_left();
    return true;
}

// Whole photos, of a program that was ended while it fetched them.
void Thumbnail_Cache::remove_what_was_left() {
    for (const Kept_File& file : files_in(folder_)) {
        std::error_code error;
        if (file.path.filename().string().starts_with('.')) fs::remove(file.path, error);
    }
}

// Some more goes than must, so that not every picture has the folder counted again.
void Thumbnail_Cache::count_and_shrink() {
    std::vector<Kept_File> files = files_in(folder_);
    bytes_ = 0;
    for (const Kept_File& file : files) bytes_ += file.bytes;
    if (bytes_ <= limit_) return;
    std::sort(files.begin(), files.end(),
              [](const Kept_File& a, const Kept_File& b) { return a.used < b.used; });
    for (const Kept_File& file : files) {
        if (bytes_ <= limit_ - limit_ / 10) return;
        std::error_code error;
        if (fs::remove(file.path, error)) bytes_ -= file.bytes;
    }
}

}  // namespace velk
