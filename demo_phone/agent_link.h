// One connection of the first wire: collects a request and answers it.
#pragma once

#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_service.h"

namespace velk {

class Agent_Link : public Phone_Service {
  public:
    explicit Agent_Link(Demo_Phone& phone) : phone_(phone) {}

    void received(std::string_view bytes, Phone_Outlet& outlet) override;

  private:
    void answer(Phone_Outlet& outlet);

    Demo_Phone& phone_;
    std::string request_;
    bool answered_ = false;
};

}  // namespace velk
