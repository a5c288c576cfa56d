// The `adb` that stands beside the program: it runs the real one, and restores the few habits of
// an older tool by which the program reads what it says. The rest passes through untouched.
#include "launcher/errands.h"
#include "launcher/real_tool.h"

int main(int count, char** values) {
    const velk::Command_Line call = velk::read_command_line({values + 1, values + count});
    const std::string tool = velk::find_real_tool();
    if (tool.empty()) return velk::run_without_a_tool(call, velk::advice_without_a_tool());
    return velk::run_errand(tool, call);
}
