// The phone's files: a private folder of the computer. No path of the phone leads out of it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

/// What the phone says about a file; all zero when there is none.
struct Phone_File {
    std::string name;
    std::uint32_t mode = 0;  // type and permissions, as in st_mode
    std::uint64_t size = 0;  // bytes
    std::uint32_t time = 0;  // of the last change, seconds since 1970
    bool is_folder() const;
    bool is_file() const;
};

class Phone_Storage {
  public:
    /// The folder is made when it is missing; an empty name makes one that is removed again at the
    /// end. Nothing when that fails.
    static std::unique_ptr<Phone_Storage> open(const std::string& folder);
    ~Phone_Storage();
    Phone_Storage(const Phone_Storage&) = delete;
    Phone_Storage& operator=(const Phone_Storage&) = delete;

    /// Where a file of the phone really lies; nothing when the way there leaves the folder.
    std::optional<std::filesystem::path> real_path(std::string_view phone_path) const;

    Phone_File facts(std::string_view phone_path) const;
    /// What a folder holds, by name; empty when it is no folder.
    std::vector<Phone_File> list(std::string_view phone_path) const;
    /// The phone's paths of all files below a folder, by name.
    std::vector<std::string> files_below(std::string_view phone_path) const;

    bool make_folders(std::string_view phone_path);
    /// Writes a whole file and makes the folders on the way to it.
    bool write(std::string_view phone_path, std::string_view bytes);
    /// Sets the time of a file's last change, in seconds since 1970.
    bool set_time(std::string_view phone_path, std::uint32_t time);
    /// Removes a file, or a folder and all below it when `whole_folder` is set.
    bool remove(std::string_view phone_path, bool whole_folder = false);
    /// Bytes of all files below a folder.
    std::uint64_t used_bytes(const std::string& folder = "") const;

  private:
    Phone_Storage(std::filesystem::path root, bool temporary);

    std::filesystem::path root_;
    bool temporary_;
};

/// A path of the phone in its one form: absolute, without dots, the card under /sdcard.
std::string plain_phone_path(std::string_view phone_path);

}  // namespace velk
