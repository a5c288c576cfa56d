// Commands that the agent only acknowledges.
#include <utility>

#include "agent/edit_request.h"
#include "agent/second_wire_edits.h"
#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/trace.h"

namespace velk {

namespace {

/// What the second wire calls the files that a command deletes.
const char* kind_of(const sock_apk& agent, int code) {
    if (code == agent.getCommand_DelMusicFile()) return "music";
    if (code == agent.getCommand_DelVideoFile()) return "videos";
    return "photos";
}

}  // namespace

bool sock_apk::is_answered(const std::string& command) {
    refusal_.clear();
    trace_request(command);
    return !send_command(command).empty();
}

bool sock_apk::is_done(Edit_Result result) {
    refusal_ = std::move(result.reason);
    return result.done;
}

std::string sock_apk::get_command(int code) {
    return static_cast<char>(toascii(code)) + std::string(5, '\0');
}

bool sock_apk::do_command(int code) {
    const bool by_name = code == getCommand_DelAllContacts() && second_wire_in_use();
    const bool answered = by_name ? is_done(delete_all_contacts()) : is_answered(get_command(code));
    trace("%s", plain(answered ? "Successfully!" : "Failed!"));
    return answered;
}

std::string sock_apk::add_command_for_music_image_video_book(int code, const char* path) {
    return edit_request(code, std::string(path) + "|");
}

bool sock_apk::add_one_for_music_image_video_book(int code, const char* path) {
    if (second_wire_in_use()) return is_done(add_file(path));
    return is_answered(add_command_for_music_image_video_book(code, path));
}

std::string sock_apk::del_command_for_music_image_video(int code, const char* id,
                                                        const char* path) {
    return edit_request(code, std::string(path) + "*" + id + "*|");
}

bool sock_apk::del_one_for_music_image_video(int code, const char* id, const char* path) {
    if (second_wire_in_use()) return is_done(delete_file(kind_of(*this, code), id, path));
    return is_answered(del_command_for_music_image_video(code, id, path));
}

std::string sock_apk::del_command_for_book(int code, const char* path) {
    return edit_request(code, std::string(path) + "|");
}

bool sock_apk::del_one_for_book(int code, const char* path) {
    if (second_wire_in_use()) return is_done(delete_file("books", "", path));
    return is_answered(del_command_for_book(code, path));
}

}  // namespace velk
