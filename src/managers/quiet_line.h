// The second line under a section's status line.
#pragma once

#include <cstddef>
#include <string>

#include "ui/outlets.h"

namespace velk {

/// Says why a command failed that is silent about it, and what is wrong with the list.
/// User-interface thread.
class Quiet_Line {
  public:
    explicit Quiet_Line(std::string name) : m_LB_Quiet(std::move(name)) {}

    /// Of the last command; stays until the next one.
    void tell_reason(std::string reason) { show(reason_, std::move(reason)); }
    /// Of the last load; stays until the next one.
    void tell_of_list(std::string remark) { show(remark_, std::move(remark)); }

    Label m_LB_Quiet;

  private:
    void show(std::string& part, std::string text);

    std::string reason_;
    std::string remark_;
};

/// Of several things that were to be done: how many failed, and why (when that is known) the last
/// of them did. Of a single one the reason alone; empty when there is nothing to say.
std::string words_of_failures(std::size_t failed, std::size_t all, const std::string& reason);

inline constexpr const char* list_is_old =
    "The phone was changed while the list came. Refresh reads it again.";

/// What to say of a list that has come: that the phone was changed while it came, or that it has
/// fewer rows than the phone counted when its summary was read. The latter not once the phone was
/// changed, because that count is old then.
std::string remark_on_list(bool is_old, int counted, std::size_t came);

}  // namespace velk
