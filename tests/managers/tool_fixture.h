#pragma once

#include "bridge/adb_wrappers.h"
#include "managers/manager_fixture.h"
#include "support/fake_adb.h"

namespace velk {

/// Sections that need the tool as well, and load when they are made.
class Tool_Test : public Manager_Test {
  protected:
    using Lines = std::vector<std::string>;

    Tool_Test() { g_adb_tool_file = adb.tool(); }

    /// What was shown, up to the begin of a load.
    Lines lines_before_the_load() const {
        const Lines& all = recorder.lines();
        return {all.begin(), std::find_if(all.begin(), all.end(), [](const std::string& line) {
                    return line.ends_with(" reloaded: 0 rows");
                })};
    }
    /// Presses a button of the section and lets its work end.
    void press(const Table_Source& source, std::size_t button) {
        recorder.clear();
        source.section.commands[button].run();
        finish();
    }

    Fake_Adb adb;
};

}  // namespace velk
