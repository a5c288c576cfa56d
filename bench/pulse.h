// How long the window keeps a person waiting.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <vector>

#include "base/interruptor.h"
#include "figures.h"

namespace velk {

using Clock = std::chrono::steady_clock;

inline double milliseconds_since(Clock::time_point begun) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

/// Sends an event to the window's thread every millisecond and notes how long each had to wait:
/// what a click would have waited at that moment.
class Pulse : public QObject {
  public:
    void beat_until(const std::atomic<bool>& ended) {
        while (!ended && !Interruptor::current().cancelled()) {
            QCoreApplication::postEvent(this, new Beat);
            Interruptor::current().sleep_for(std::chrono::milliseconds(1));
        }
    }

    void print() {
        if (waits.empty()) return;
        std::sort(waits.begin(), waits.end());
        const std::size_t count = waits.size();
        const auto slow =
            std::count_if(waits.begin(), waits.end(), [](double t) { return t > 50; });
        std::fprintf(
            figures(),
            "  waits of %zu events: median %.2f ms, 99%% %.2f ms, longest %.2f ms, %ld over 50 "
            "ms\n",
            count, waits[count / 2], waits[count * 99 / 100], waits.back(), slow);
    }

    std::vector<double> waits;  // milliseconds

  protected:
    bool event(QEvent* event) override {
        if (const auto* beat = dynamic_cast<Beat*>(event))
            waits.push_back(milliseconds_since(beat->sent));
        return true;
    }

  private:
    struct Beat : QEvent {
        Beat() : QEvent(QEvent::User) {}
        Clock::time_point sent = Clock::now();
    };
};

}  // namespace velk
