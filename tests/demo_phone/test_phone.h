// A phone without sockets.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "demo_phone/agent_link.h"
#include "demo_phone/demo_data.h"
#include "demo_phone/demo_phone.h"

namespace velk {

/// A byte string from a literal that holds zeros.
template <std::size_t size>
std::string raw(const char (&literal)[size]) {
    return std::string(literal, size - 1);
}

struct Test_Phone {
    std::unique_ptr<Phone_Storage> storage = Phone_Storage::open("");
    Phone_Log log;
    Demo_Phone phone{{}, *storage, log};

    std::string ask(std::string_view request) { return answer_request(phone, request).bytes; }
    std::string ask(int code) { return ask(std::string(1, static_cast<char>(code))); }
};

}  // namespace velk
