#include "bridge/device_list.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

struct Captured {
    const char* what;
    std::string output;
    bool lists_a_device;
    std::string serial;
    Device_State state;
};

const std::string header = "List of devices attached ";

const Captured captured_outputs[] = {
    {"one phone", header + "\n4df1f2c8\tdevice\n\n", true, "4df1f2c8", Device_State::usable},
    {"no phone", header + "\n\n", false, "", Device_State::unknown},
    {"header cut", "List of devices attached", false, "", Device_State::unknown},
    {"waiting for allow", header + "\n4df1f2c8\tunauthorized\n\n", true, "4df1f2c8",
     Device_State::unauthorized},
    {"offline", header + "\n4df1f2c8\toffline\n\n", true, "4df1f2c8", Device_State::offline},
    {"first offline second usable", header + "\nA1\toffline\nB2\tdevice\n\n", true, "A1",
     Device_State::usable},
    {"starting daemon before the header",
     "* daemon not running; starting now at tcp:5037\n* daemon started successfully\n" + header +
         "\n4df1f2c8\tdevice\n\n",
     true, "4df1f2c8", Device_State::usable},
    {"blank missing loses a letter", "List of devices attached\n4df1f2c8\tdevice\n\n", true,
     "df1f2c8", Device_State::usable},
    {"carriage returns take the blanks place",
     "List of devices attached\r\n4df1f2c8\tdevice\r\n\r\n", true, "4df1f2c8",
     Device_State::usable},
    {"last line unfinished", header + "\n4df1f2c8\tdevice", true, "4df1f2c8", Device_State::usable},
    {"no tab", header + "\n4df1f2c8 offline\n\n", true, "", Device_State::offline},
    {"no permissions with the hint",
     header + "\n4df1f2c8\tno permissions (user in plugdev group; are your udev rules "
              "wrong?); see [http://developer.android.com/tools/device.html]\n\n",
     true, "4df1f2c8", Device_State::usable},
};

TEST(Device_List, is_read_from_what_the_tool_printed) {
    for (const Captured& captured : captured_outputs) {
        SCOPED_TRACE(captured.what);
        const std::size_t position = attached_position(captured.output);
        ASSERT_NE(position, std::string::npos);
        EXPECT_EQ(lists_a_device(captured.output, position), captured.lists_a_device);
        EXPECT_EQ(get_device_sn_id(captured.output, position), captured.serial);
        const std::string behind =
            captured.output.substr(position + define_adb_device_attached.size());
        EXPECT_EQ(device_state(behind), captured.state);
    }
}

TEST(Device_List, is_read_at_every_length_without_harm) {
    const std::string whole = header + "\n4df1f2c8\tdevice\n\n";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string output = whole.substr(0, length);
        const std::size_t position = attached_position(output);
        const bool has_serial = length > whole.find('\t');
        EXPECT_EQ(get_device_sn_id(output, position), has_serial ? "4df1f2c8" : "") << length;
        EXPECT_EQ(lists_a_device(output, position), length > header.size() + 2) << length;
    }
}

}  // namespace
}  // namespace velk
