#include "bridge/device_list.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

const std::string header = "List of devices attached ";

TEST(Device_List, is_read_from_what_the_tool_printed) {
    using enum Device_State;
    const struct {
        std::string output;
        bool lists_a_device;
        std::string serial;
        Device_State state;
    } captured_outputs[] = {
        {header + "\n4df1f2c8\tdevice\n\n", true, "4df1f2c8", usable},
        {header + "\n\n", false, "", unknown},
        {"List of devices attached", false, "", unknown},
        {header + "\n4df1f2c8\tunauthorized\n\n", true, "4df1f2c8", unauthorized},
        {header + "\nA1\toffline\n\n", true, "A1", offline},
        {header + "\nA1\toffline\nB2\tdevice\n\n", true, "A1", usable},
        {"* daemon started\n" + header + "\n4df1f2c8\tdevice\n\n", true, "4df1f2c8", usable},
        // Without the blank the serial number loses a letter; a carriage return takes its place.
        {"List of devices attached\n4df1f2c8\tdevice\n\n", true, "df1f2c8", usable},
        {"List of devices attached\r\n4df1f2c8\tdevice\r\n\r\n", true, "4df1f2c8", usable},
        {header + "\n4df1f2c8 offline\n\n", true, "", offline},
        {header + "\nA1\tno permissions (are your udev rules wrong?); see [tools/device.html]\n\n",
         true, "A1", usable},
    };
    for (const auto& [output, lists, serial, state] : captured_outputs) {
        SCOPED_TRACE(output);
        const std::size_t position = attached_position(output);
        ASSERT_NE(position, std::string::npos);
        EXPECT_EQ(lists_a_device(output, position), lists);
        EXPECT_EQ(get_device_sn_id(output, position), serial);
        EXPECT_EQ(device_state(output.substr(position + define_adb_device_attached.size())), state);
    }
}

}  // namespace
}  // namespace velk
