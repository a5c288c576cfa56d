#include "agent/second_wire_lists.h"

#include <algorithm>
#include <string_view>

#include "agent/second_wire.h"
#include "agent/shown_numbers.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

/// What a member of a record is kept as.
enum class Value {
    text,
    number,    // decimal text
    truth,     // "1" or "0"
    size,      // bytes, as a list shows them
    duration,  // milliseconds, as a list shows them
};

template <class Record>
struct Member {
    const char* name;
    Value value;
    std::string Record::*stored;
};

using Contact = sock_apk::CONTACT;
using Message = sock_apk::SMS_RECORD;
using App = sock_apk::APP_RECORD;
using Music = sock_apk::MUSIC_RECORD;
using Video = sock_apk::VIDEO_RECORD;
using Photo = sock_apk::PHOTO_RECORD;
using Book = sock_apk::BOOK_RECORD;

// What each list is called, and what its records consist of.

struct Contacts_List {
    static constexpr const char* kind = "contacts";
    static constexpr Member<Contact> members[] = {
        {"id", Value::text, &Contact::ID},
        {"name", Value::text, &Contact::name},
        {"number", Value::text, &Contact::tel},
    };
};
struct Messages_List {
    static constexpr const char* kind = "messages";
    static constexpr Member<Message> members[] = {
        {"number", Value::text, &Message::TEL}, {"text", Value::text, &Message::TEXT},
        {"date", Value::text, &Message::DATE},  {"type", Value::number, &Message::TYPE},
        {"id", Value::text, &Message::ID},      {"thread", Value::text, &Message::threadID},
        {"read", Value::truth, &Message::read},
    };
};
struct Apps_List {
    static constexpr const char* kind = "applications";
    static constexpr Member<App> members[] = {
        {"size", Value::size, &App::size},       {"installed", Value::text, &App::second},
        {"name", Value::text, &App::name},       {"package", Value::text, &App::package},
        {"version", Value::text, &App::version}, {"path", Value::text, &App::sixth},
    };
};
struct Music_List {
    static constexpr const char* kind = "music";
    static constexpr Member<Music> members[] = {
        {"id", Value::text, &Music::id},
        {"artist", Value::text, &Music::singer},
        {"album", Value::text, &Music::zhuanji},
        {"path", Value::text, &Music::path},
        {"duration", Value::duration, &Music::timer},
        {"size", Value::size, &Music::size},
        {"ring", Value::truth, &Music::is_ring},
    };
};
struct Videos_List {
    static constexpr const char* kind = "videos";
    static constexpr Member<Video> members[] = {
        {"id", Value::text, &Video::id},
        {"path", Value::text, &Video::file_path},
        {"duration", Value::duration, &Video::timer},
        {"size", Value::size, &Video::size},
    };
};
struct Photos_List {
    static constexpr const char* kind = "photos";
    static constexpr Member<Photo> members[] = {
        {"id", Value::text, &Photo::id},
        {"path", Value::text, &Photo::file_path},
        {"size", Value::size, &Photo::size},
    };
};
struct Books_List {
    static constexpr const char* kind = "books";
    static constexpr Member<Book> members[] = {
        {"path", Value::text, &Book::file_path},
        {"size", Value::size, &Book::size},
        {"folder", Value::text, &Book::location},
    };
};

std::string stored_value(const simdjson::dom::object& record, const char* name, Value value) {
    switch (value) {
        case Value::text:
            return replace_all(text_of(record, name), std::string_view("\0", 1), "\xEF\xBF\xBD");
        case Value::number:
            return std::to_string(number_of(record, name));
        case Value::truth:
            return truth_of(record, name) ? "1" : "0";
        case Value::size:
            return shown_size(std::max(static_cast<double>(number_of(record, name)), 0.0));
        case Value::duration:
            break;
    }
    return shown_time(std::max<std::int64_t>(number_of(record, name), 0));
}

template <class List, class Record>
std::string fetch(std::vector<Record>& records) {
    const std::string request = format(R"({"op":"list","kind":"%s"})", List::kind);
    const Wire_End end = ask_second_wire(request, [&](const simdjson::dom::object& from) {
        Record& record = records.emplace_back();
        for (const Member<Record>& member : List::members)
            record.*member.stored = stored_value(from, member.name, member.value);
    });
    trace("\ncount :%d\n", static_cast<int>(records.size()));
    return end.reason;
}

}  // namespace

template <>
std::string list_on_second_wire(std::vector<Contact>& records) {
    return fetch<Contacts_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<Message>& records) {
    return fetch<Messages_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<App>& records) {
    return fetch<Apps_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<Music>& records) {
    return fetch<Music_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<Video>& records) {
    return fetch<Videos_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<Photo>& records) {
    return fetch<Photos_List>(records);
}

template <>
std::string list_on_second_wire(std::vector<Book>& records) {
    return fetch<Books_List>(records);
}

}  // namespace velk
