#include "managers/table_source.h"

#include <utility>

namespace velk {

Table_Source::Table_Source(Main_Window& window, std::string quiet_name)
    : quiet(std::move(quiet_name)), window_(window) {
    section.quiet = &quiet.m_LB_Quiet;
}

void Table_Source::set_commands(std::vector<Command> commands) {
    for (Command& command : commands)
        command.run = [this, run = std::move(command.run)] {
            quiet.tell_reason("");
            run();
        };
    section.commands = std::move(commands);
}

void Table_Source::ask_person(const std::string& question, std::function<void()> agreed) {
    desktop().open_alert(yes_or_no(question), [agreed = std::move(agreed)](int button) {
        if (button == yes) agreed();
    });
}

void Table_Source::phone_was_changed(Flag may_load, Flag& needs_refresh) {
    list_is_old_ = !may_load;
    if (!list_is_old_) return;
    needs_refresh = 1;
    quiet.tell_of_list(list_is_old);
}

bool Table_Source::person_agrees(const std::string& question) {
    return desktop().run_alert(yes_or_no(question)) == yes;
}

}  // namespace velk
