#include "ui/busy_line.h"

#include <utility>

#include "ui/desktop.h"

namespace velk {

int Busy_Line::begin(const std::string& text) {
    waits_[next_] = text;
    show();
    return next_++;
}

void Busy_Line::update(int wait, const std::string& text) {
    waits_[wait] = text;
    show();
}

void Busy_Line::end(int wait) {
    waits_.erase(wait);
    show();
}

void Busy_Line::show() {
    m_LB_Busy.set_text(waits_.empty() ? "" : waits_.rbegin()->second);
}

Busy_Note::Busy_Note(Desktop& desktop, Busy_Line& line, std::string text)
    : desktop_(desktop), line_(line), wait_(std::make_shared<int>(0)) {
    desktop_.post(
        [&busy = line_, wait = wait_, text = std::move(text)] { *wait = busy.begin(text); });
}

Busy_Note::~Busy_Note() {
    desktop_.post([&busy = line_, wait = wait_] { busy.end(*wait); });
}

void Busy_Note::say(std::string text) {
    desktop_.post(
        [&busy = line_, wait = wait_, text = std::move(text)] { busy.update(*wait, text); });
}

}  // namespace velk
