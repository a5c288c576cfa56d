#include "managers/thumbnails.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/interruptor.h"
#include "bridge/adb_command.h"
#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

namespace {

namespace fs = std::filesystem;

constexpr const char* worker_name = "thumbnail";

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
    std::erase_if(wishes, [this](const Wish& wish) { return gave_up(wish.key); });
    wishes_ = std::move(wishes);
    const bool still_wanted = std::any_of(
        wishes_.begin(), wishes_.end(), [this](const Wish& wish) { return wish.key == fetching_; });
    if (!still_wanted) break_off();
    go_on();
}

// An attempt removes the agent and asks much of the tool; what a person does comes first.
bool Thumbnails::may_fetch() const {
    return g_connected_adb && g_can_click_refresh && desktop_.takes_input() &&
           !desktop_.closing() && outside_.may_fetch();
}

void Thumbnails::break_off() {
    if (!fetching_.empty()) Worker::interrupt(worker_name);
}

void Thumbnails::go_on() {
    if (!may_fetch()) return break_off();
    if (!fetching_.empty() || wishes_.empty()) return;
    const Wish wish = wishes_.front();
    fetching_ = wish.key;
    const bool started = Worker::start(worker_name, [this, wish, tool = phone_tool(desktop_)] {
        const std::optional<std::string> content = content_of(wish, tool);
        if (content) outside_.deliver(wish.key, *content);
        const End end = content                              ? End::brought
                        : Interruptor::current().cancelled() ? End::broken_off
                                                             : End::failed;
        desktop_.post([this, key = wish.key, end] { has_ended(key, end); });
    });
    if (!started) fetching_.clear();
}

// What was broken off is still wished for, unless it has gone out of sight.
void Thumbnails::has_ended(const std::string& key, End end) {
    fetching_.clear();
    if (end == End::failed) failed_.insert(key);
    if (end != End::broken_off)
        std::erase_if(wishes_, [&](const Wish& wish) { return wish.key == key; });
    go_on();
}

std::optional<std::string> Thumbnails::content_of(const Wish& wish, const Phone_Tool& tool) {
    std::optional<std::string> content = cache_.find(wish.key);
    if (content) return content;
    content = fetched(wish, tool);
    if (content) cache_.keep(wish.key, *content);
    return content;
}

// The tool would take another path than a whole one for an option, or for one of its own folder. A
// folder of the phone's, whatever its name, does not come: there is a file in its place.
std::optional<std::string> Thumbnails::fetched(const Wish& wish, const Phone_Tool& tool) {
    const Passing_File file(cache_.place_for_a_while());
    if (file.path.empty() || !wish.path.starts_with('/')) return std::nullopt;
    bool cut_off = false;
    const std::string printed =
        ADB_Command().Pull_File_To_Computer(tool.path, tool.serial, wish.path, file.path, &cut_off);
    std::error_code error;
    const bool came = printed.empty() && !cut_off && !Interruptor::current().cancelled() &&
                      fs::is_regular_file(fs::symlink_status(file.path, error));
    return came ? std::optional(outside_.shrink(file.path)) : std::nullopt;
}

}  // namespace velk
