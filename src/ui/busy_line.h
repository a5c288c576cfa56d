// What the program is waiting for, said beside the status line and never in it.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "ui/outlets.h"

namespace velk {

class Desktop;

/// The line itself: the newest of the waits that are under way, empty when there is none.
/// User-interface thread.
class Busy_Line {
  public:
    Label m_LB_Busy{"m_LB_Busy"};

    int begin(const std::string& text);
    void update(int wait, const std::string& text);
    void end(int wait);

  private:
    void show();

    std::map<int, std::string> waits_;
    int next_ = 1;
};

/// One wait of a worker: shown from here to the end of its scope.
class Busy_Note {
  public:
    Busy_Note(Desktop& desktop, Busy_Line& line, std::string text);
    ~Busy_Note();
    Busy_Note(const Busy_Note&) = delete;
    Busy_Note& operator=(const Busy_Note&) = delete;

    /// The wait has come further, or waits for something else now.
    void say(std::string text);

  private:
    Desktop& desktop_;
    Busy_Line& line_;
    std::shared_ptr<int> wait_;  // its number, known once the posted beginning has run
};

}  // namespace velk
