#include "session/trouble_lookout.h"

#include <unistd.h>

#include <algorithm>

#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

void Trouble_Lookout::adb_has_answered(std::string output) {
    answer_ = std::move(output);
    phones_at_the_answer_.reset();
}

void Trouble_Lookout::look(const std::string& package) {
    look_again_ = looking_;
    if (looking_) return;
    Trouble_Facts facts{.agent_package = package, .directory = directory_};
    looking_ = Worker::start("trouble", [this, facts = std::move(facts)] { look_around(facts); });
}

// Worker.
void Trouble_Lookout::look_around(Trouble_Facts facts) {
    const std::string file = facts.directory + "/" + facts.agent_package;
    facts.agent_package_is_there = access(file.c_str(), R_OK) == 0;
    if (usb_) facts.phones = usb_->phones();
    desktop_.post([this, facts = std::move(facts)] { take(facts); });
}

void Trouble_Lookout::take(Trouble_Facts facts) {
    looking_ = false;
    if (std::exchange(look_again_, false)) return look(facts.agent_package);
    if (!phones_at_the_answer_) phones_at_the_answer_ = facts.phones;
    facts.adb_answer = answer_;
    facts.connected = g_connected_adb;
    facts.bus_has_changed = std::any_of(
        phones_at_the_answer_->begin(), phones_at_the_answer_->end(), [&](const Usb_Phone& phone) {
            return std::find(facts.phones.begin(), facts.phones.end(), phone) == facts.phones.end();
        });
    say_(what_to_put_right(facts));
}

}  // namespace velk
