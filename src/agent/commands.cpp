// Commands that the agent only acknowledges.
#include "agent/edit_request.h"
#include "agent/sock_apk.h"
#include "base/trace.h"

namespace velk {

bool sock_apk::is_answered(const std::string& command) {
    trace_request(command);
    return !send_command(command).empty();
}

std::string sock_apk::get_command(int code) {
    return static_cast<char>(toascii(code)) + std::string(5, '\0');
}

bool sock_apk::do_command(int code) {
    const bool answered = is_answered(get_command(code));
    trace("%s", plain(answered ? "Successfully!" : "Failed!"));
    return answered;
}

std::string sock_apk::add_command_for_music_image_video_book(int code, const char* path) {
    return edit_request(code, std::string(path) + "|");
}

bool sock_apk::add_one_for_music_image_video_book(int code, const char* path) {
    return is_answered(add_command_for_music_image_video_book(code, path));
}

std::string sock_apk::del_command_for_music_image_video(int code, const char* id,
                                                        const char* path) {
    return edit_request(code, std::string(path) + "*" + id + "*|");
}

bool sock_apk::del_one_for_music_image_video(int code, const char* id, const char* path) {
    return is_answered(del_command_for_music_image_video(code, id, path));
}

std::string sock_apk::del_command_for_book(int code, const char* path) {
    return edit_request(code, std::string(path) + "|");
}

bool sock_apk::del_one_for_book(int code, const char* path) {
    return is_answered(del_command_for_book(code, path));
}

}  // namespace velk
