// The phone as a whole: everything that its services share. Used from one thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "demo_phone/adb_message.h"
#include "demo_phone/phone_agent.h"
#include "demo_phone/phone_behaviour.h"
#include "demo_phone/phone_log.h"
#include "demo_phone/phone_storage.h"
#include "demo_phone/phone_store.h"

namespace velk {

/// Fixed for the life of the phone.
struct Phone_Settings {
    std::string model = "Demo Phone";
    std::size_t largest_packet = g_adb_largest_data;  // bytes of data in one message
    bool later_services = false;  // offers shell_v2, cmd and stat_v2, as later phones do
    std::size_t messages_per_packet = 20;
    bool first_wire = true;  // whether the agent speaks it
    bool second_wire = true;
    bool refuse_writes = false;  // the agent may change nothing
    std::int64_t first_id = 0;   // is added to every id that the phone gives
};

struct Demo_Phone {
    Phone_Settings settings;
    Phone_Storage& storage;
    Phone_Log& log;
    Phone_Behaviour behaviour{};
    Phone_Store store{{settings.first_id, settings.first_wire}};
    Agent_Life agent{};
    int battery = 76;  // per cent
};

}  // namespace velk
