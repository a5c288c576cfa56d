// The phone's libraries: applications, music, videos, photos, books. Their lists differ only in
// what a record consists of, so each is described by its fields, and read by what reads them all.
#include "agent/bytes.h"
#include "agent/carried_list.h"
#include "agent/record_places.h"
#include "agent/second_wire_lists.h"
#include "agent/sock_apk.h"
#include "agent/wire_choice.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::size_t largest_chunk = 40960;

/// How a field looks on the wire and what becomes of it.
enum class Kind {
    number,        // four bytes, kept as decimal text
    short_number,  // two bytes, the same
    text,          // a length of four bytes and so many bytes, kept as they are
    size,          // a text: a number of bytes, kept as get_size() shows it
    duration       // a text: a number of milliseconds, kept as get_time() shows it
};

template <class Record>
struct Field {
    Kind kind;
    std::string Record::*stored;
    const char* missing;  // the trace when the bytes end in front of it or in its head
};

// --- the five descriptions, fields in the order they come ----------------------------------------

using App = sock_apk::APP_RECORD;
using Music = sock_apk::MUSIC_RECORD;
using Video = sock_apk::VIDEO_RECORD;
using Photo = sock_apk::PHOTO_RECORD;
using Book = sock_apk::BOOK_RECORD;

constexpr char no_id[] = "Music ID Checked.\n";
constexpr char no_first_text[] = "Music Singer Checked.\n";
constexpr char no_later_field[] = "Music Checked.\n";

constexpr Field<App> app_fields[] = {
    {Kind::size, &App::size, no_id},    {Kind::text, &App::second, no_id},
    {Kind::text, &App::name, no_id},    {Kind::text, &App::package, no_id},
    {Kind::text, &App::version, no_id}, {Kind::text, &App::sixth, no_id},
};
constexpr Field<Music> music_fields[] = {
    {Kind::number, &Music::id, no_id},
    {Kind::text, &Music::singer, no_first_text},
    {Kind::text, &Music::zhuanji, no_later_field},
    {Kind::text, &Music::path, no_later_field},
    {Kind::duration, &Music::timer, no_later_field},
    {Kind::size, &Music::size, no_later_field},
    {Kind::short_number, &Music::is_ring, no_later_field},
};
constexpr Field<Video> video_fields[] = {
    {Kind::number, &Video::id, no_id},
    {Kind::text, &Video::file_path, no_first_text},
    {Kind::duration, &Video::timer, no_later_field},
    {Kind::size, &Video::size, no_later_field},
};
constexpr Field<Photo> photo_fields[] = {
    {Kind::number, &Photo::id, no_id},
    {Kind::text, &Photo::file_path, no_first_text},
    {Kind::size, &Photo::size, no_later_field},
};
constexpr Field<Book> book_fields[] = {
    {Kind::text, &Book::file_path, no_first_text},
    {Kind::size, &Book::size, no_later_field},
    {Kind::text, &Book::location, no_later_field},
};

// --- one field -----------------------------------------------------------------------------------

/// A number's bytes, or those of a text's length: without all of them there is no field.
constexpr std::size_t head_of(Kind kind) {
    return kind == Kind::short_number ? 2 : 4;
}

bool is_number(Kind kind) {
    return kind == Kind::number || kind == Kind::short_number;
}

/// The place behind the field at `place`, be it beyond the bytes' end.
std::size_t behind_field(Kind kind, std::string_view bytes, std::size_t place) {
    return is_number(kind) ? place + head_of(kind) : behind_text(bytes, place);
}

/// What is kept of the field at `place`; a text of which bytes are missing is taken short.
std::string value_of(Kind kind, std::string_view bytes, std::size_t place) {
    const std::string_view head = bytes_at(bytes, place, head_of(kind));
    if (kind == Kind::number) return format("%d", sock_apk::for_java_char4_to_int(head));
    if (kind == Kind::short_number) return format("%d", sock_apk::for_java_char2_to_int(head));
    std::string text(bytes_at(bytes, place + head.size(), length_at(bytes, place)));
    if (kind == Kind::size) return sock_apk::get_size(text.c_str());
    if (kind == Kind::duration) return sock_apk::get_time(text.c_str());
    return text;
}

// --- all lists -----------------------------------------------------------------------------------

/// Where the bytes end the next record begins, and there the list seems to be over; so it does in a
/// last text, which is taken short. A cut anywhere else is carried over.
template <const auto& fields>
Stretch stretch_of(std::string_view bytes) {
    Stretch record{0, 0};
    for (const auto& field : fields) {
        record.losing_from = record.length + head_of(field.kind);
        record.length = behind_field(field.kind, bytes, record.length);
    }
    return record;
}

template <const auto& fields, class Record>
void trace_record(const Record& record) {
    trace("\n");
    for (const auto& field : fields) trace("%s\n", (record.*field.stored).c_str());
    trace("--------\n");
}

template <const auto& fields, class Record>
std::string parse(const std::string& data, int length, std::vector<Record>& records, int start) {
    const std::string_view bytes = bytes_at(data, 0, static_cast<std::size_t>(length));
    if (bytes.size() < list_header) return {};
    for (auto place = static_cast<std::size_t>(start); place < bytes.size();) {
        const std::size_t begin = place;
        Record record;
        for (const auto& field : fields) {
            if (place + head_of(field.kind) > bytes.size()) {
                trace("%s", plain(field.missing));
                return std::string(bytes.substr(begin));
            }
            record.*field.stored = value_of(field.kind, bytes, place);
            place = behind_field(field.kind, bytes, place);
        }
        trace_record<fields>(record);
        records.push_back(std::move(record));
        trace("music count =%d\n", static_cast<int>(records.size()));  // whatever it counts
    }
    return {};
}

bool ends_list(const std::string& left) {
    return left.empty();
}

/// Gives why records are missing, as far as the wire in use tells.
template <const auto& fields, class Record>
std::string fetch(const char* code, std::vector<Record>& records) {
    if (second_wire_in_use()) return list_on_second_wire(records);
    Record_Places places(largest_chunk, list_header, stretch_of<fields>);
    const auto parse_chunk = [&records](const std::string& bytes, int start) {
        return parse<fields>(bytes, static_cast<int>(bytes.size()), records, start);
    };
    fetch_list(code, places, parse_chunk, ends_list, records);
    return {};
}

}  // namespace

std::string sock_apk::send_command_get_app_list(const char* code, std::vector<App>& apps) {
    refusal_ = fetch<app_fields>(code, apps);
    return {};
}

std::string sock_apk::send_command_get_music(const char* code, std::vector<Music>& music) {
    refusal_ = fetch<music_fields>(code, music);
    return {};
}

std::string sock_apk::send_command_get_video(const char* code, std::vector<Video>& videos) {
    refusal_ = fetch<video_fields>(code, videos);
    return {};
}

std::string sock_apk::send_command_get_photo(const char* code, std::vector<Photo>& photos) {
    refusal_ = fetch<photo_fields>(code, photos);
    return {};
}

std::string sock_apk::send_command_get_book(const char* code, std::vector<Book>& books) {
    refusal_ = fetch<book_fields>(code, books);
    return {};
}

std::string sock_apk::get_app_list(const std::string& data, int length, int /*first*/,
                                   std::vector<App>& apps, int start) {
    return parse<app_fields>(data, length, apps, start);
}

std::string sock_apk::get_music_list(const std::string& data, int length, int /*first*/,
                                     std::vector<Music>& music, int start) {
    return parse<music_fields>(data, length, music, start);
}

std::string sock_apk::get_video_list(const std::string& data, int length, int /*first*/,
                                     std::vector<Video>& videos, int start) {
    return parse<video_fields>(data, length, videos, start);
}

std::string sock_apk::get_photo_list(const std::string& data, int length, int /*first*/,
                                     std::vector<Photo>& photos, int start) {
    return parse<photo_fields>(data, length, photos, start);
}

std::string sock_apk::get_book_list(const std::string& data, int length, int /*first*/,
                                    std::vector<Book>& books, int start) {
    return parse<book_fields>(data, length, books, start);
}

}  // namespace velk
