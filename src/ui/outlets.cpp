#include "ui/outlets.h"

#include <atomic>
#include <cassert>
#include <thread>

namespace velk {

namespace {

std::atomic<std::thread::id> ui_thread{};

}  // namespace

bool on_ui_thread() {
    const std::thread::id owner = ui_thread;
    return owner == std::thread::id() || owner == std::this_thread::get_id();
}

void this_is_the_ui_thread() {
    ui_thread = std::this_thread::get_id();
}

Outlet::Observation Outlet::observe(Observer observer) {
    std::erase_if(observers_, [](const auto& old) { return old.expired(); });
    auto observation = std::make_shared<const Observer>(std::move(observer));
    observers_.push_back(observation);
    return observation;
}

void Outlet::changed(const char* what) {
    assert(on_ui_thread());
    last_change_ = what;
    for (const auto& observer : observers_)
        if (const Observation observed = observer.lock()) (*observed)(*this);
}

}  // namespace velk
