// Fetching small pictures of the phone's files, one at a time and behind everything else.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "managers/phone_tool.h"
#include "managers/thumbnail_cache.h"
#include "ui/desktop.h"

namespace velk {

/// Brings the pictures that are wished for, one after the other. User-interface thread; lives as
/// long as the window.
class Thumbnails {
  public:
    struct Wish {
        std::string key;   // see Thumbnail_Cache
        std::string path;  // on the phone
    };
    struct Outside {
        /// False while a person's command has the phone.
        std::function<bool()> may_fetch;
        /// Makes of a file of the phone's, now on the computer, what is kept of it; empty when it
        /// cannot be read. Worker.
        std::function<std::string(const std::string& file)> shrink;
        /// Gets each picture that has come. Worker.
        std::function<void(const std::string& key, const std::string& content)> deliver;
    };

    /// `folder` is the cache's.
    Thumbnails(Desktop& desktop, std::string folder, Outside outside)
        : desktop_(desktop), cache_(std::move(folder)), outside_(std::move(outside)) {}

    /// These and no others are wished for from now on; another one's fetch is broken off.
    void want(std::vector<Wish> wishes);
    /// Starts the next fetch if one may start, and breaks one off that may not go on; to be called
    /// when that may have changed.
    void go_on();
    /// That file could not be had, and is not tried again.
    bool gave_up(const std::string& key) const { return failed_.contains(key); }
    /// The rows are others now, be it in their order only: what could not be had is tried again.
    void try_all_again() { failed_.clear(); }

  private:
    // Worker.
    std::optional<std::string> content_of(const Wish& wish, const Phone_Tool& tool);
    std::optional<std::string> fetched(const Wish& wish, const Phone_Tool& tool);

    enum class End { brought, failed, broken_off };

    void has_ended(const std::string& key, End end);
    bool may_fetch() const;
    void break_off();

    Desktop& desktop_;
    Thumbnail_Cache cache_;  // the worker's, while one runs
    Outside outside_;
    std::vector<Wish> wishes_;  // that being fetched included
    std::string fetching_;      // the key; empty while nothing is
    std::set<std::string> failed_;
};

}  // namespace velk
