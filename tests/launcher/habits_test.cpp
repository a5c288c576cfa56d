#include "launcher/habits.h"

#include <gtest/gtest.h>

#include <utility>

namespace velk {
namespace {

TEST(Older_Device_List, mends_the_header_and_the_hint_and_nothing_else) {
    const std::pair<std::string, std::string> lists[] = {
        {"List of devices attached\n\n", "List of devices attached \n\n"},
        {"List of devices attached \n\n", "List of devices attached \n\n"},
        {"List of devices attached\nS1\tdevice\nattached\n",
         "List of devices attached \nS1\tdevice\nattached\n"},
        {"* daemon started; see [x]\nList of devices attached\nS1\tdevice",
         "* daemon started; see [x]\nList of devices attached \nS1\tdevice"},
        {"List of devices attached\nS1\tno permissions (udev rules wrong?); see "
         "[http://developer.android.com/tools/device.html]\nS2\tdevice\n",
         "List of devices attached \nS1\tno permissions (udev rules wrong?)\nS2\tdevice\n"},
        {"List of devices attached", "List of devices attached"},
        {"error: protocol fault\n", "error: protocol fault\n"},
        {"", ""},
    };
    for (const auto& [today, older] : lists) EXPECT_EQ(older_device_list(today), older);
}

TEST(Phone_Path, without_an_extension_means_a_folder) {
    for (const char* const folder :
         {"/sdcard/music", "/sdcard/photo/", "/sdcard/v1.0/book", "books"})
        EXPECT_TRUE(means_a_folder(folder)) << folder;
    for (const char* const file : {"/sdcard/music/a.mp3", "a.tar.gz", "/", ""})
        EXPECT_FALSE(means_a_folder(file)) << file;
}

TEST(Phone_Path, stays_one_word_in_the_phones_shell) {
    EXPECT_EQ(quoted_for_the_phone("/sdcard/my books"), "'/sdcard/my books'");
    EXPECT_EQ(quoted_for_the_phone("it's; rm $x"), "'it'\\''s; rm $x'");
}

}  // namespace
}  // namespace velk
