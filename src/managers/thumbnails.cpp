#include "managers/thumbnails.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "bridge/adb_command.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

namespace {

namespace fs = std::filesystem;

/// Is gone again when this goes, whatever it has become.
class Passing_File {
  public:
    explicit Passing_File(std::string where) : path(std::move(where)) {}
    ~Passing_File() {
        std::error_code error;
        fs::remove_all(path, error);
    }
    Passing_File(const Passing_File&) = delete;
    Passing_File& operator=(const Passing_File&) = delete;

    const std::string path;
};

}  // namespace

void Thumbnails::want(std::vector<Wish> wishes) {
    wishes_.clear();
    for (Wish& wish : wishes)
        if (wish.key != fetching_ && !gave_up(wish.key)) wishes_.push_back(std::move(wish));
    go_on();
}

// An attempt removes the agent and asks much of the tool; what a person does comes first.
bool Thumbnails::may_start() const {
    return fetching_.empty() && !wishes_.empty() && g_connected_adb && g_can_click_refresh &&
           desktop_.takes_input() && !desktop_.closing() && outside_.may_fetch();
}

void Thumbnails::go_on() {
    if (!may_start()) return;
    const Wish wish = std::move(wishes_.front());
    wishes_.pop_front();
    fetching_ = wish.key;
    const bool started = Worker::start("thumbnail", [this, wish, tool = phone_tool(desktop_)] {
        const std::optional<std::string> content = content_of(wish, tool);
        if (content) outside_.deliver(wish.key, *content);
        desktop_.post([this, wish, brought = content.has_value()] { has_ended(wish, brought); });
    });
    if (!started) fetching_.clear();
}

void Thumbnails::has_ended(const Wish& wish, bool brought) {
    fetching_.clear();
    if (!brought) failed_.insert(wish.key);
    go_on();
}

std::optional<std::string> Thumbnails::content_of(const Wish& wish, const Phone_Tool& tool) {
    std::optional<std::string> content = cache_.find(wish.key);
    if (content) return content;
    content = fetched(wish, tool);
    if (content) cache_.keep(wish.key, *content);
    return content;
}

// The tool would take another path than a whole one for an option, or for one of its own folder.
std::optional<std::string> Thumbnails::fetched(const Wish& wish, const Phone_Tool& tool) {
    const Passing_File file(cache_.place_for_a_while());
    if (file.path.empty() || !wish.path.starts_with('/')) return std::nullopt;
    const std::string printed =
        ADB_Command().Pull_File_To_Computer(tool.path, tool.serial, wish.path, file.path);
    std::error_code error;
    const bool came = printed.empty() && !desktop_.closing() &&
                      fs::is_regular_file(fs::symlink_status(file.path, error));
    return came ? std::optional(outside_.shrink(file.path)) : std::nullopt;
}

}  // namespace velk
