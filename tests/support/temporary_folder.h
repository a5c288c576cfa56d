#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace velk {

/// An empty folder that goes, with all that is in it, when this goes.
class Temporary_Folder {
  public:
    Temporary_Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "velk.XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~Temporary_Folder() { std::filesystem::remove_all(path_); }
    Temporary_Folder(const Temporary_Folder&) = delete;
    Temporary_Folder& operator=(const Temporary_Folder&) = delete;

    std::string path(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

}  // namespace velk
