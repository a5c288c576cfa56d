// The phone's sockets and its one loop: connections of adb servers, and the control socket.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "demo_phone/adb_connection.h"
#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_control.h"
#include "demo_phone/phone_sockets.h"

struct pollfd;

namespace velk {

struct Phone_Places {
    int port = 0;           // 0: any free odd one
    int announce_port = 0;  // of the adb server that is told about the phone; 0: none
    std::string control;    // path of the control socket; empty: none
};

class Phone_Server : private Phone_Cable {
  public:
    Phone_Server(Demo_Phone& phone, Phone_Places places);
    ~Phone_Server() override;

    /// Opens the sockets; false, with the reason on standard error, when one cannot be had.
    bool open();
    int port() const override { return places_.port; }
    /// Serves until told to quit or until `stop` can be read.
    void run(int stop);

  private:
    using Clock = std::chrono::steady_clock;

    struct Link {
        Owned_Descriptor socket;
        Adb_Connection connection;
    };
    struct Control_Link {
        Owned_Descriptor socket;
        std::string line;
        bool done = false;
    };

    bool plug() override;
    void unplug() override;
    bool plugged() const override { return static_cast<bool>(listener_); }
    void quit() override { quit_ = true; }

    void announce_when_due();
    int wait_time() const;
    void watch(std::vector<pollfd>& polled) const;
    void serve(const std::vector<pollfd>& polled);
    void accept_all();
    bool serve_link(Link& link, bool readable);
    void serve_control(Control_Link& link);

    Demo_Phone& phone_;
    Phone_Places places_;
    Owned_Descriptor listener_;
    Owned_Descriptor control_listener_;
    std::vector<Link> links_;
    std::vector<Control_Link> control_links_;
    Clock::time_point next_announcement_{};
    bool quit_ = false;
};

}  // namespace velk
