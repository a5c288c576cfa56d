#pragma once

#include <array>
#include <functional>
#include <vector>

#include "base/descriptor.h"
#include "ui/desktop.h"

namespace velk {

/// Calls `arrived` with the number of a signal that the system has sent to the program.
/// User-interface thread. While it lives these signals no longer kill; afterwards they do again.
/// One object at a time for each signal.
class Unix_Signals {
  public:
    Unix_Signals(Desktop& desktop, std::vector<int> numbers, std::function<void(int)> arrived);
    ~Unix_Signals();
    Unix_Signals(const Unix_Signals&) = delete;
    Unix_Signals& operator=(const Unix_Signals&) = delete;

    /// False when the system did not take the handler of one of them.
    bool established() const { return established_; }

  private:
    Unix_Signals(Desktop& desktop, std::vector<int> numbers, std::function<void(int)> arrived,
                 std::array<int, 2> pipe);
    void read_all();

    std::vector<int> numbers_;
    std::function<void(int)> arrived_;
    Descriptor reader_;
    Descriptor writer_;
    Desktop::Watch watch_;
    bool established_ = false;
};

}  // namespace velk
