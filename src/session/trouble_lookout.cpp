#include "session/trouble_lookout.h"

#include <unistd.h>

#include <algorithm>

#include "ui/program_wide.h"
#include "ui/worker.h"

namespace velk {

void Trouble_Lookout::adb_has_answered(std::string output) {
    answer_ = std::move(output);
    phones_at_the_answer_.reset();
    look_again_ = looking_;  // that look is older than the answer
}

void Trouble_Lookout::look(const std::string& package) {
    look_again_ = looking_;
    if (looking_) return;
    looking_ = Worker::start("trouble", [this, package] {
        desktop_.post([this, facts = found_around(package)] { take(facts); });
    });
}

Trouble_Facts Trouble_Lookout::facts_now(const std::string& package) const {
    Trouble_Facts facts = found_around(package);
    return desktop_.ask([this, &facts] {
        add_answer(facts);
        return facts;
    });
}

// Worker.
Trouble_Facts Trouble_Lookout::found_around(const std::string& package) const {
    Trouble_Facts facts{.agent_package = package, .directory = directory_};
    const std::string file = directory_ + "/" + package;
    facts.agent_package_is_there = access(file.c_str(), R_OK) == 0;
    if (usb_) facts.phones = usb_->phones();
    return facts;
}

void Trouble_Lookout::add_answer(Trouble_Facts& facts) const {
    const auto has_gone = [&](const Usb_Phone& phone) {
        return std::find(facts.phones.begin(), facts.phones.end(), phone) == facts.phones.end();
    };
    facts.adb_answer = answer_;
    facts.connected = g_connected_adb;
    facts.bus_has_changed =
        phones_at_the_answer_ &&
        std::any_of(phones_at_the_answer_->begin(), phones_at_the_answer_->end(), has_gone);
}

void Trouble_Lookout::take(Trouble_Facts facts) {
    looking_ = false;
    if (std::exchange(look_again_, false)) return look(facts.agent_package);
    if (!phones_at_the_answer_) phones_at_the_answer_ = facts.phones;
    add_answer(facts);
    say_(what_to_put_right(facts));
}

}  // namespace velk
