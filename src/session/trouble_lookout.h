#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "session/trouble_shooter.h"
#include "ui/desktop.h"

namespace velk {

/// Gathers what the trouble shooter has to know. Looking around may take a while, so a worker does
/// it. User-interface thread; lives until the workers have gone.
class Trouble_Lookout {
  public:
    /// Without `usb` the bus counts as empty. The agent's package belongs into `directory`. `say`
    /// is given each sentence, on the user-interface thread.
    Trouble_Lookout(Desktop& desktop, const Usb_Monitor* usb, std::string directory,
                    std::function<void(std::string)> say)
        : desktop_(desktop), usb_(usb), directory_(std::move(directory)), say_(std::move(say)) {}

    /// What adb has printed in an attempt.
    void adb_has_answered(std::string output);
    /// Looks around for the agent's package and for phones: at once, or as soon as the look that
    /// is under way has ended.
    void look(const std::string& package);
    /// All that is known now, without a sentence about it. Workers; takes as long as the system.
    Trouble_Facts facts_now(const std::string& package) const;

  private:
    Trouble_Facts found_around(const std::string& package) const;
    void add_answer(Trouble_Facts& facts) const;
    void take(Trouble_Facts facts);

    Desktop& desktop_;
    const Usb_Monitor* usb_;
    std::string directory_;
    std::function<void(std::string)> say_;
    std::optional<std::string> answer_;
    std::optional<std::vector<Usb_Phone>> phones_at_the_answer_;  // as the first look finds them
    bool looking_ = false;
    bool look_again_ = false;
};

}  // namespace velk
