// Small pictures of the phone's files, as they are kept on the computer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velk {

/// A folder of the user's cache. One thread at a time; all of it may take as long as the disk does.
/// Names in the folder are made of hashes, so nothing of the phone's decides where a file goes.
class Thumbnail_Cache {
  public:
    static constexpr std::uintmax_t most_bytes = 200'000'000;

    /// The folder is made when something is kept.
    explicit Thumbnail_Cache(std::string folder, std::uintmax_t limit = most_bytes)
        : folder_(std::move(folder)), limit_(limit) {}

    /// What the picture of a file is kept under: another one when the file's size, as it is shown,
    /// has changed.
    static std::string key_of(const std::string& serial, const std::string& path,
                              const std::string& size);

    /// What is kept, which counts as used now; nothing when there is none.
    std::optional<std::string> find(const std::string& key);
    /// Keeps the content; what was not used for longest goes when the folder holds too much.
    void keep(const std::string& key, const std::string& content);
    /// An empty file in the folder, for what is wanted for a while; no path when there is none.
    std::string place_for_a_while();

  private:
    bool has_folder();
    void remove_what_was_left();
    void count_and_shrink();

    std::string folder_;
    std::uintmax_t limit_;
    std::uintmax_t bytes_ = 0;
    bool counted_ = false;
    bool tidied_ = false;
};

}  // namespace velk
