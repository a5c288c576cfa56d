// From the name of a service to the service.
#pragma once

#include <memory>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/phone_service.h"

namespace velk {

/// Nothing when the phone has no such service, or nobody listens there now.
std::unique_ptr<Phone_Service> open_phone_service(Demo_Phone& phone, std::string_view name);

}  // namespace velk
