#include "launcher/habits.h"

#include <gtest/gtest.h>

#include <utility>

namespace velk {
namespace {

TEST(Older_Device_List, mends_the_header_and_the_hint_and_nothing_else) {
    const std::pair<std::string, std::string> lists[] = {
        {"List of devices attached\n\n", "List of devices attached \n\n"},
        {"List of devices attached \n\n", "List of devices attached \n\n"},
        {"* started; see [x]\nList of devices attached\nS1\tdevice\nattached",
         "* started; see [x]\nList of devices attached \nS1\tdevice\nattached"},
        {"List of devices attached\nS1\tno permissions (udev rules wrong?); see "
         "[http://developer.android.com/tools/device.html]\nS2\toffline\n",
         "List of devices attached \nS1\tno permissions (udev rules wrong?)\nS2\toffline\n"},
        {"List of devices attached", "List of devices attached"},
    };
    for (const auto& [today, older] : lists) EXPECT_EQ(older_device_list(today), older);
}

}  // namespace
}  // namespace velk
