// Writes down every change of the outlets it watches, in order, as lines that a test compares.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/outlets.h"
#include "ui/table.h"

namespace velk {

/// Lives longer than the outlets' last change. User-interface thread.
///
///   m_LB_ps: Loading......             a text, a title, a value
///   m_LB_Size_PhoneTotal tool tip: 1,000
///   m_BT_Refresh hidden, m_BT_Refresh shown
///   m_BT_Contacts colour: 255 255 255
///   m_table_Contacts reloaded: 0 rows, m_table_Contacts: 12 rows, m_table_Contacts scrolled
class Outlet_Recorder {
  public:
    void watch(Label& label);
    void watch(Button& button);
    void watch(Level_Indicator& gauge);
    void watch(Table& table);
    /// Any other outlet: `describe` gives what is written behind its name.
    void watch(Outlet& outlet, std::function<std::string()> describe);

    /// A line of the test's own, for what is no outlet.
    void note(const std::string& line) { lines_.push_back(line); }

    const std::vector<std::string>& lines() const { return lines_; }
    /// Only the lines that start with `name`.
    std::vector<std::string> lines_of(const std::string& name) const;
    void clear() { lines_.clear(); }

  private:
    std::vector<std::string> lines_;
    std::vector<Outlet::Observation> watched_;
};

}  // namespace velk
