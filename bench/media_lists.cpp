// How many of many lists of music, photos, videos, books and applications come in whole, every
// field compared with what the demo phone holds. Prints the counts and times; the agent must answer
// on its port (bench/media_lists.sh brings one there, through the real adb).
//
// STORAGE is the folder of the phone's files; those that it lacks are made first, which is all that
// 0 tries do.
//
//   media_lists STORAGE TRIES MUSIC PHOTOS VIDEOS BOOKS APPS
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "agent/sock_apk.h"
#include "count_whole.h"
#include "demo_phone/demo_data.h"

namespace {

using velk::Media_Kind;
using velk::Phone_Media;
using velk::sock_apk;

std::string shown_size(std::uint64_t bytes) {
    return sock_apk::get_size(std::to_string(bytes).c_str());
}
std::string shown_time(int milliseconds) {
    return sock_apk::get_time(std::to_string(milliseconds).c_str());
}

bool is_same(const sock_apk::MUSIC_RECORD& music, const Phone_Media& held) {
    return music.id == std::to_string(held.id) && music.singer == held.artist &&
           music.zhuanji == held.album && music.path == held.path &&
           music.timer == shown_time(held.duration) && music.size == shown_size(held.size) &&
           music.is_ring == (held.ring ? "1" : "0");
}

bool is_same(const sock_apk::VIDEO_RECORD& video, const Phone_Media& held) {
    return video.id == std::to_string(held.id) && video.file_path == held.path &&
           video.timer == shown_time(held.duration) && video.size == shown_size(held.size);
}

bool is_same(const sock_apk::PHOTO_RECORD& photo, const Phone_Media& held) {
    return photo.id == std::to_string(held.id) && photo.file_path == held.path &&
           photo.size == shown_size(held.size);
}

bool is_same(const sock_apk::BOOK_RECORD& book, const Phone_Media& held) {
    return book.file_path == held.path && book.size == shown_size(held.size) &&
           book.location == held.path.substr(0, held.path.rfind('/'));
}

bool is_same(const sock_apk::APP_RECORD& app, const velk::Phone_App& held) {
    return app.size == shown_size(held.size) && app.second == held.installed &&
           app.name == held.name && app.package == held.package && app.version == held.version &&
           app.sixth == "/data/app/" + held.package + ".apk";
}

/// Counts the lists of one kind, which `fetch` of the client asks for by `code`.
template <class Record, class Held>
void count_lists(const char* what, int tries, const char* code, const std::vector<Held>& held,
                 std::string (sock_apk::*fetch)(const char*, std::vector<Record>&)) {
    count_whole(what, tries, [&] {
        std::vector<Record> records;
        (sock_apk().*fetch)(code, records);
        return std::equal(records.begin(), records.end(), held.begin(), held.end(),
                          [](const Record& one, const Held& other) { return is_same(one, other); });
    });
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 8) {
        std::fputs("usage: media_lists STORAGE TRIES MUSIC PHOTOS VIDEOS BOOKS APPS\n", stderr);
        return 2;
    }
    velk::Demo_Amounts amounts;
    std::size_t* const wanted[] = {&amounts.music, &amounts.photos, &amounts.videos, &amounts.books,
                                   &amounts.apps};
    for (std::size_t i = 0; i < std::size(wanted); ++i)
        *wanted[i] = static_cast<std::size_t>(std::atoi(arguments[i + 3]));
    velk::Phone_Store store;
    const auto storage = velk::Phone_Storage::open(arguments[1]);
    if (!storage || !velk::fill_library(store, *storage, amounts)) {
        std::perror("media_lists");
        return 1;
    }
    const int tries = std::atoi(arguments[2]);
    if (tries == 0) return 0;
    count_lists("music lists", tries, "115", store.media(Media_Kind::music),
                &sock_apk::send_command_get_music);
    count_lists("photo lists", tries, "118", store.media(Media_Kind::photo),
                &sock_apk::send_command_get_photo);
    count_lists("video lists", tries, "117", store.media(Media_Kind::video),
                &sock_apk::send_command_get_video);
    count_lists("book lists", tries, "119", store.media(Media_Kind::book),
                &sock_apk::send_command_get_book);
    count_lists("application lists", tries, "116", store.apps(),
                &sock_apk::send_command_get_app_list);
    return 0;
}
