// The two ways in which a command of the person's gets its worker.
#pragma once

#include <functional>
#include <string>

#include "ui/command.h"

namespace velk {

class Desktop;

/// A can-click flag that a worker holds at 0; gives it back when it goes, or before.
class Held_Flag {
  public:
    Held_Flag(Desktop& desktop, Flag& flag) : desktop_(desktop), flag_(&flag) {}
    ~Held_Flag() { give_back(); }
    Held_Flag(const Held_Flag&) = delete;
    Held_Flag& operator=(const Held_Flag&) = delete;

    /// Posts that the flag is 1 again, once.
    void give_back();

  private:
    Desktop& desktop_;
    Flag* flag_;
};

/// Starts `body` on a worker while `flag` is 1, and holds the flag at 0 until the body has ended
/// or gives it back. Does nothing, and gives false, while the flag is 0. User-interface thread.
bool start_guarded(Desktop& desktop, Flag& flag, const std::string& name,
                   std::function<void(Held_Flag&)> body);

/// Runs `body` on a worker, in the order it would have on the user-interface thread, while what
/// stands on the screen takes no input. Does nothing, and gives false, while another such command
/// runs. User-interface thread.
bool run_command(Desktop& desktop, const std::string& name, std::function<void()> body);

}  // namespace velk
