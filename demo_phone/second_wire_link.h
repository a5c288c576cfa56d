// One connection of the second wire: collects a line, answers it, closes.
#pragma once

#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_service.h"
#include "demo_phone/played_reply.h"
#include "demo_phone/second_wire.h"

namespace velk {

/// Bytes of the longest request, without its line end.
inline constexpr std::size_t g_longest_line = std::size_t{8} << 20;

class Second_Wire_Link : public Phone_Service {
  public:
    explicit Second_Wire_Link(Demo_Phone& phone) : phone_(phone), played_(phone.behaviour) {}

    void received(std::string_view bytes, Phone_Outlet& outlet) override;
    /// Sends the next part of the reply, so that a long list never waits here as a whole.
    void drained(Phone_Outlet& outlet) override;

  private:
    enum class State { reading, answering, done };

    void take_request(Phone_Outlet& outlet);
    /// Appends records until the part is full; false, with the last line, when none are left.
    bool fill(std::string& part);

    Demo_Phone& phone_;
    State state_ = State::reading;
    std::string request_;
    Wire_Reply reply_;
    std::int64_t records_ = 0;
    Played_Reply played_;
};

}  // namespace velk
