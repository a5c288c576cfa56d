// What stands at the phone's end of a stream, and what it may do with the stream.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace velk {

/// The way from a service to the computer. Lives as long as the service it is handed to.
class Phone_Outlet {
  public:
    virtual ~Phone_Outlet() = default;
    /// Puts bytes behind what still waits to go out; they leave `pause` after the bytes before.
    virtual void send(std::string bytes, std::chrono::milliseconds pause = {}) = 0;
    /// Closes the stream once everything has gone out.
    virtual void finish() = 0;
};

/// One opened service. All calls come from the phone's one thread.
class Phone_Service {
  public:
    virtual ~Phone_Service() = default;
    /// The computer knows that the stream is open.
    virtual void opened(Phone_Outlet&) {}
    virtual void received(std::string_view bytes, Phone_Outlet& outlet) = 0;
    /// Everything sent so far was taken: the moment to send more of a long answer.
    virtual void drained(Phone_Outlet&) {}
};

}  // namespace velk
