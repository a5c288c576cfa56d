// How the agent sends a reply: well, or badly in the way that the phone is told to behave.
#pragma once

#include <cstddef>
#include <string>

#include "demo_phone/phone_behaviour.h"
#include "demo_phone/phone_service.h"

namespace velk {

class Played_Reply {
  public:
    /// `behaviour` is looked at anew for each part of the reply.
    explicit Played_Reply(const Phone_Behaviour& behaviour) : behaviour_(behaviour) {}

    /// False when the agent does not answer at all; it may have closed the connection then.
    bool begins(Phone_Outlet& outlet) const;
    /// Sends the next part of the reply. False when the reply ends here, whatever was to follow.
    bool send(std::string bytes, Phone_Outlet& outlet);
    /// A reader of a damaged reply may not find the end at which it would close the connection.
    bool is_broken() const;
    /// Bytes sent so far.
    std::size_t sent() const { return sent_; }

  private:
    void send_in_pieces(const std::string& bytes, Phone_Outlet& outlet) const;

    const Phone_Behaviour& behaviour_;
    std::size_t sent_ = 0;
};

}  // namespace velk
