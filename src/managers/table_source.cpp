#include "managers/table_source.h"

#include <utility>

#include "ui/dialog.h"
#include "ui/program_wide.h"

namespace velk {

Table_Source::Table_Source(Main_Window& window, Identity identity)
    : quiet("m_LB_Quiet_" + identity.name), window_(window), identity_(std::move(identity)) {
    section.status = &identity_.status;
    section.quiet = &quiet.m_LB_Quiet;
}

void Table_Source::set_commands(std::vector<Command> commands) {
    for (Command& command : commands) command.run = afresh(std::move(command.run));
    section.commands = std::move(commands);
}

Command Table_Source::refresh_command(const char* name, std::function<void()> run) {
    return {.name = name,
            .caption = "Refresh",
            .icon = "refresh",
            .run = std::move(run),
            .guard = &identity_.may_load,
            .keys = keys_of_refresh};
}

std::function<void()> Table_Source::afresh(std::function<void()> run) {
    return [this, run = std::move(run)] {
        quiet.tell_reason("");
        run();
    };
}

void Table_Source::take_drops(Dropped_Files drops) {
    section.drop = std::move(drops);
    section.drop.take = [this,
                         take = std::move(section.drop.take)](std::vector<std::string> paths) {
        quiet.tell_reason("");
        take(std::move(paths));
    };
}

void Table_Source::ask_person(const Alert& question, std::function<void()> agreed) {
    desktop().open_alert(
        question, [this, agreed = std::move(agreed), phone = g_device_serial_number](int button) {
            if (button == yes && is_still_in_use(phone)) agreed();
        });
}

void Table_Source::open_panel(const File_Panel& panel,
                              std::function<void(const std::string&)> chosen) {
    desktop().open_file_panel(panel, [this, chosen = std::move(chosen),
                                      phone = g_device_serial_number](const std::string& path) {
        if (path.empty() || is_still_in_use(phone)) chosen(path);
    });
}

void Table_Source::open_dialog(Dialog& dialog, std::function<void()> confirmed) {
    desktop().open_dialog(
        dialog, [this, &dialog, confirmed = std::move(confirmed), phone = g_device_serial_number] {
            if (dialog.bOK && is_still_in_use(phone)) confirmed();
        });
}

bool Table_Source::is_still_in_use(const std::string& phone) {
    const bool still = g_device_serial_number == phone;
    if (!still) quiet.tell_reason(another_phone);
    return still;
}

void Table_Source::show_count(int rows) {
    window_.set_section_title(
        identity_.button, std::string(identity_.button_title) + "(" + std::to_string(rows) + ")");
    window_.set_BT_Caption_White();
}

void Table_Source::start_load(std::function<void()> load) {
    start_guarded(desktop(), identity_.may_load, identity_.name,
                  [this, load = std::move(load)](Held_Flag& loading) {
                      load();
                      loading.give_back();
                      post([this] {
                          // Who asked for a refresh meanwhile was refused.
                          if (std::exchange(brings_an_old_list_, false)) table_is_stale();
                          if (load_ended) load_ended();
                      });
                  });
}

void Table_Source::list_may_be_old() {
    brings_an_old_list_ = !identity_.may_load;
    if (brings_an_old_list_) list_is_old_now();
}

void Table_Source::list_is_old_now() {
    quiet.tell_of_list(list_is_old);
    table_is_stale();
}

void Table_Source::table_is_stale() {
    if (identity_.needs_refresh) *identity_.needs_refresh = 1;
}

void Table_Source::post_status(std::string text) {
    post([this, text = std::move(text)] { say(text); });
}

void Table_Source::post_reason(std::string refusal) {
    if (refusal.empty()) return;
    post([this, refusal = std::move(refusal)] { quiet.tell_reason(refusal); });
}

void Table_Source::post_change() {
    post([] { g_phone_was_changed = 1; });
}

bool Table_Source::list_is_coming() {
    return desktop().ask([this] { return !identity_.may_load; });
}

bool Table_Source::tell_saved(const std::string& path, const std::string& reason, bool was_coming) {
    const char* const partly = "The list was still coming, so the file may hold a part of it.";
    if (!path.empty())
        post([this, words = reason.empty() && was_coming ? partly : reason] {
            quiet.tell_reason(words);
        });
    return reason.empty();
}

bool Table_Source::person_agrees(const std::string& question, const std::string& phone) {
    if (desktop().run_alert(yes_or_no(question)) != yes) return false;
    return desktop().ask([this, &phone] { return is_still_in_use(phone); });
}

}  // namespace velk
