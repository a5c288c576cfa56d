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

    /// What the picture of a file is kept under: another one when the file has changed in size.
    static std::string key_of(const std::string& serial, const std::string& path,
                              const std::string& size);

    /// What is kept, which counts as used now; nothing when there is none.
    std::optional<std::string> find(const std::string& key);
    /// Keeps the content; what was not used for longest goes when the folder holds too much.
    void keep(const std::string& key, const std::string& content);
    /// A place in the folder for a file that is wanted for a while; empty when there is no folder.
    std::string place_for_a_while();

  private:
    bool has_folder();
    void count_and_shrink();

    std::string folder_;
    std::uintmax_t limit_;
    std::uintmax_t bytes_ = 0;
    bool counted_ = false;
};

}  // namespace velk
