#include "managers/thumbnail_cache.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "support/temporary_folder.h"

namespace velk {
namespace {

TEST(Thumbnail_Cache_Test, lets_go_of_what_was_not_used_for_longest) {
    const Temporary_Folder folder;
    const std::string place = folder.path("thumbnails");
    Thumbnail_Cache cache(place, 1000);
    const auto grow_old = [&](const char* key, int hours) {
        std::filesystem::last_write_time(
            place + "/" + key,
            std::filesystem::file_time_type::clock::now() - std::chrono::hours(hours));
    };
    cache.keep("old", std::string(400, 'o'));
    cache.keep("used", std::string(400, 'u'));
    grow_old("used", 3);
    grow_old("old", 2);
    EXPECT_TRUE(cache.find("used"));
    cache.keep("new", std::string(400, 'n'));
    EXPECT_FALSE(cache.find("old"));
    EXPECT_TRUE(cache.find("used"));
    EXPECT_EQ(Thumbnail_Cache(place, 1000).find("new"), std::string(400, 'n'));
}

}  // namespace
}  // namespace velk
