#include "demo_phone/wire_records.h"

#include <charconv>
#include <ctime>

#include "demo_phone/wire_line.h"

namespace velk {

namespace {

/// Milliseconds since 1970 UTC of a local time like "2024-05-06 07:08:09"; 0 for another text.
std::int64_t time_of(std::string_view date) {
    int parts[6] = {};
    const char* place = date.data();
    const char* const end = place + date.size();
    for (int& part : parts) {
        const auto [rest, error] = std::from_chars(place, end, part);
        if (error != std::errc()) return 0;
        place = rest == end ? end : rest + 1;
    }
    std::tm time{};
    time.tm_year = parts[0] - 1900;
    time.tm_mon = parts[1] - 1;
    time.tm_mday = parts[2];
    time.tm_hour = parts[3];
    time.tm_min = parts[4];
    time.tm_sec = parts[5];
    time.tm_isdst = -1;  // mktime finds out whether it is summer time
    return std::int64_t{std::mktime(&time)} * 1000;
}

void append_record(std::string& lines, const Phone_Contact& contact) {
    Wire_Line(lines)
        .id("id", contact.id)
        .text("name", contact.name)
        .text("number", contact.tel)
        .end();
}

void append_record(std::string& lines, const Phone_Message& message) {
    Wire_Line(lines)
        .id("id", message.id)
        .id("thread", message.thread)
        .text("number", message.tel)
        .text("text", message.text)
        .text("date", message.date)
        .number("time", time_of(message.date))
        .number("type", message.type)
        .flag("read", message.read)
        .end();
}

void append_record(std::string& lines, const Phone_App& app) {
    Wire_Line(lines)
        .text("package", app.package)
        .text("name", app.name)
        .text("version", app.version)
        .text("installed", app.installed)
        .number("size", static_cast<std::int64_t>(app.size))
        .text("path", "/data/app/" + app.package + ".apk")
        .end();
}

void append_record(std::string& lines, const Phone_Media& media) {
    const bool is_music = media.kind == Media_Kind::music;
    Wire_Line line(lines);
    if (media.kind != Media_Kind::book) line.id("id", media.id);
    line.text("path", media.path);
    if (is_music) line.text("artist", media.artist).text("album", media.album);
    if (is_music || media.kind == Media_Kind::video) line.number("duration", media.duration);
    line.number("size", static_cast<std::int64_t>(media.size));
    if (is_music) line.flag("ring", media.ring);
    if (media.kind == Media_Kind::book)
        line.text("folder", media.path.substr(0, media.path.rfind('/')));
    line.end();
}

template <typename List>
Record_Source records_of(const List& list) {
    return [&list, place = List::start](std::string& lines) mutable {
        const auto* record = list.next(place);
        if (record) append_record(lines, *record);
        return record != nullptr;
    };
}

Record_Source media_of(const Phone_Store& store, Media_Kind kind) {
    return [&store, kind, path = std::string()](std::string& lines) mutable {
        const Phone_Media* media = store.next_media(kind, path);
        if (!media) return false;
        path = media->path;
        append_record(lines, *media);
        return true;
    };
}

}  // namespace

Record_Source list_records(const Phone_Store& store, Wire_Kind kind) {
    switch (kind) {
        case Wire_Kind::contacts:
            return records_of(store.contacts());
        case Wire_Kind::messages:
            return records_of(store.messages());
        case Wire_Kind::applications:
            // Few enough that the list of this moment can be kept.
            return [apps = store.apps(), i = std::size_t{0}](std::string& lines) mutable {
                if (i < apps.size()) append_record(lines, apps[i]);
                return i++ < apps.size();
            };
        default:
            return media_of(store, media_kind(kind));
    }
}

std::size_t count_records(const Phone_Store& store, Wire_Kind kind) {
    switch (kind) {
        case Wire_Kind::contacts:
            return store.contacts().size();
        case Wire_Kind::messages:
            return store.messages().size();
        case Wire_Kind::applications:
            return store.apps().size();
        default:
            return store.count(media_kind(kind));
    }
}

}  // namespace velk
