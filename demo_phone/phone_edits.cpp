#include "demo_phone/phone_edits.h"

#include <ctime>

namespace velk {

namespace {

std::string local_time_of_now() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
    return text;
}

}  // namespace

bool send_message(Phone_Store& store, const std::string& tel, const std::string& text) {
    constexpr int sent = 2;
    return !tel.empty() && text.size() <= g_longest_message &&
           store.add_message({0, 0, tel, text, local_time_of_now(), sent, true});
}

bool delete_file(Phone_Store& store, Phone_Storage& storage, Media_Kind kind,
                 const std::string& path) {
    if (!store.delete_media(kind, path)) return false;
    storage.remove(path);
    return true;
}

}  // namespace velk
