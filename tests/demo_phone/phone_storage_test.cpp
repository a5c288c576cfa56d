#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo_phone/phone_storage.h"

namespace velk {
namespace {

TEST(Phone_Storage, no_path_leads_out_of_the_folder) {
    const auto outside = Phone_Storage::open("");
    const auto storage = Phone_Storage::open("");
    const std::string root = storage->real_path("/")->parent_path().string();
    for (const char* path : {"/../../etc/passwd", "../x", "/sdcard/../../../x", "//x", "", "/./..",
                             "/sdcard/./../..//../x"})
        EXPECT_THAT(storage->real_path(path)->string(), testing::StartsWith(root)) << path;
    EXPECT_FALSE(storage->real_path(std::string_view("/a\0b", 4)));
    create_directory_symlink(*outside->real_path("/"), *storage->real_path("/sdcard/link"));
    EXPECT_FALSE(storage->real_path("/sdcard/link/x"));
    EXPECT_FALSE(storage->write("/sdcard/link/x", "1"));
    EXPECT_FALSE(storage->remove("/", true));
}

}  // namespace
}  // namespace velk
