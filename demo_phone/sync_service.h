// The file transfer service: STAT, LIST, SEND, RECV and QUIT, and the later STA2 and LST2.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_service.h"

namespace velk {

class Sync_Service : public Phone_Service {
  public:
    explicit Sync_Service(Demo_Phone& phone) : phone_(phone) {}

    void received(std::string_view bytes, Phone_Outlet& outlet) override;
    void drained(Phone_Outlet& outlet) override;

  private:
    enum class Step { request, receiving, refusing, sending };

    bool take_request(Phone_Outlet& outlet);
    void answer(std::string_view letters, const std::string& path, Phone_Outlet& outlet);
    bool take_data(Phone_Outlet& outlet);
    void list(const std::string& path, Phone_Outlet& outlet);
    void start_receiving(const std::string& target, Phone_Outlet& outlet);
    void end_receiving(std::uint32_t time, Phone_Outlet& outlet);
    void start_sending(const std::string& path, Phone_Outlet& outlet);
    void refuse(std::string_view reason, Phone_Outlet& outlet);

    Demo_Phone& phone_;
    Step step_ = Step::request;
    std::string buffer_;
    std::string target_;  // the file that is being received
    std::ofstream incoming_;
    std::ifstream outgoing_;
};

}  // namespace velk
