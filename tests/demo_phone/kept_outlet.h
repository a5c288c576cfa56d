// What a service sends, kept for a test.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "demo_phone/phone_service.h"

namespace velk {

struct Kept_Outlet : Phone_Outlet {
    std::string all;
    std::vector<std::size_t> pieces;  // their sizes
    bool finished = false;

    void send(std::string bytes, std::chrono::milliseconds) override {
        all += bytes;
        pieces.push_back(bytes.size());
    }
    void finish() override { finished = true; }
};

}  // namespace velk
