#include "demo_phone/media_scan.h"

#include <algorithm>
#include <string>

namespace velk {

namespace {

/// Where the computer puts what it adds, and what a file there is whose name does not tell.
struct Added_Folder {
    std::string_view path;
    Media_Kind kind;
};

constexpr Added_Folder added_folders[] = {{"/sdcard/music", Media_Kind::music},
                                          {"/sdcard/movies", Media_Kind::video},
                                          {"/sdcard/photo", Media_Kind::photo},
                                          {"/sdcard/book", Media_Kind::book}};

struct Name_End {
    std::string_view end;
    Media_Kind kind;
};

constexpr Name_End name_ends[] = {
    {".mp3", Media_Kind::music},  {".wav", Media_Kind::music}, {".ogg", Media_Kind::music},
    {".flac", Media_Kind::music}, {".m4a", Media_Kind::music}, {".avi", Media_Kind::video},
    {".mp4", Media_Kind::video},  {".mkv", Media_Kind::video}, {".3gp", Media_Kind::video},
    {".mov", Media_Kind::video},  {".png", Media_Kind::photo}, {".jpg", Media_Kind::photo},
    {".jpeg", Media_Kind::photo}, {".gif", Media_Kind::photo}, {".webp", Media_Kind::photo},
    {".txt", Media_Kind::book},   {".epub", Media_Kind::book}, {".pdf", Media_Kind::book},
    {".fb2", Media_Kind::book},   {".doc", Media_Kind::book},  {".html", Media_Kind::book},
};

void enter_file(Phone_Store& store, const Phone_Storage& storage, const std::string& path,
                Media_Kind kind) {
    Phone_Media media;
    if (const Phone_Media* known = store.find_media(path)) media = *known;
    media.kind = kind;
    media.path = path;
    media.size = storage.facts(path).size;
    if (kind == Media_Kind::music && media.artist.empty()) media.artist = media.album = "<unknown>";
    store.add_media(std::move(media));
}

std::string_view base_name(std::string_view path) {
    while (path.ends_with('/')) path.remove_suffix(1);
    return path.substr(path.rfind('/') + 1);
}

}  // namespace

std::optional<Media_Kind> media_kind_of(std::string_view path) {
    std::string lower(path);
    for (char& character : lower)
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
    for (const Name_End& known : name_ends)
        if (lower.ends_with(known.end)) return known.kind;
    return std::nullopt;
}

bool scan_media(Phone_Store& store, const Phone_Storage& storage, std::string_view folder) {
    bool found = false;
    for (const std::string& path : storage.files_below(folder)) {
        const auto kind = media_kind_of(path);
        if (!kind) continue;
        enter_file(store, storage, path, *kind);
        found = true;
    }
    return found;
}

bool enter_added_file(Phone_Store& store, const Phone_Storage& storage,
                      std::string_view computer_path) {
    const std::string_view name = base_name(computer_path);
    if (name.empty()) return false;
    bool found = false;
    for (const Added_Folder& folder : added_folders) {
        std::string path = plain_phone_path(std::string(folder.path).append("/").append(name));
        const Phone_File file = storage.facts(path);
        if (file.is_folder()) found = scan_media(store, storage, path) || found;
        if (!file.is_file()) continue;
        enter_file(store, storage, path, media_kind_of(path).value_or(folder.kind));
        found = true;
    }
    return found;
}

}  // namespace velk
