#include "managers/thumbnail_cache.h"

#include <algorithm>
#include <filesystem>
#include <functional>
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
    const std::string whole = serial + between + path + between + size;
    return format("%016zx", std::hash<std::string_view>()(whole));
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
    if (!write_whole_file((fs::path(folder_) / key).string(), content).empty()) return;
    bytes_ += content.size();
    if (!std::exchange(counted_, true) || bytes_ > limit_) count_and_shrink();
}

std::string Thumbnail_Cache::place_for_a_while() {
    return has_folder() ? (fs::path(folder_) / hidden_name()).string() : std::string();
}

bool Thumbnail_Cache::has_folder() {
    std::error_code error;
    if (fs::create_directories(folder_, error))
        fs::permissions(folder_, fs::perms::owner_all, error);
    return fs::is_directory(folder_, error);
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
