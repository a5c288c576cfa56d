#include "managers/file_rows.h"

#include "base/text.h"
#include "managers/common_columns.h"

namespace velk {

namespace {

// The columns that several of these tables have, each with its own name for the field.

constexpr Column id_column(const char* identifier) {
    return {
        .identifier = identifier, .title = "ID", .comparison = Comparison::number, .hidden = true};
}

constexpr Column path_column(const char* identifier) {
    return {.identifier = identifier, .title = "File", .width = 40, .wide = true, .fixed = true};
}

/// "01:02:05": in the order of the texts.
constexpr Column duration_column(const char* identifier) {
    return {.identifier = identifier, .title = "Duration", .width = 10, .searched = false};
}

}  // namespace

const std::array<Row_Column<Music_TableSource_Column>, 8>& Music_TableSource_Column::row_columns() {
    using Row = Music_TableSource_Column;
    static const std::array<Row_Column<Row>, 8> columns = {{
        {no_column, &Row::col_no},
        {{.identifier = "music_singer", .title = "Artist", .width = 20}, &Row::music_singer},
        {{.identifier = "music_zhuanji", .title = "Album", .width = 20}, &Row::music_zhuanji},
        {path_column("music_path"), &Row::music_path},
        {duration_column("music_timer"), &Row::music_timer},
        {size_column("music_size"), &Row::music_size},
        {id_column("music_id"), &Row::music_id},
        {{.identifier = "music_is_ring",
          .title = "Ring Tone",
          .comparison = Comparison::number,
          .hidden = true},
         &Row::music_is_ring},
    }};
    return columns;
}

Music_TableSource_Column row_of(const sock_apk::MUSIC_RECORD& record, std::size_t number) {
    return {std::to_string(number),
            record.id,
            until_nul(record.zhuanji),
            until_nul(record.singer),
            until_nul(record.path),
            record.timer,
            record.size,
            record.is_ring};
}

Listed_File file_of(const Music_TableSource_Column& row) {
    return {row.col_no, row.music_id, row.music_path};
}

const std::array<Row_Column<Video_TableSource_Column>, 5>& Video_TableSource_Column::row_columns() {
    using Row = Video_TableSource_Column;
    static const std::array<Row_Column<Row>, 5> columns = {{
        {no_column, &Row::col_no},
        {path_column("video_file_path"), &Row::video_file_path},
        {duration_column("video_timer"), &Row::video_timer},
        {size_column("video_size"), &Row::video_size},
        {id_column("video_id"), &Row::video_id},
    }};
    return columns;
}

Video_TableSource_Column row_of(const sock_apk::VIDEO_RECORD& record, std::size_t number) {
    return {std::to_string(number), record.id, until_nul(record.file_path), record.timer,
            record.size};
}

Listed_File file_of(const Video_TableSource_Column& row) {
    return {row.col_no, row.video_id, row.video_file_path};
}

const std::array<Row_Column<Photo_TableSource_Column>, 4>& Photo_TableSource_Column::row_columns() {
    using Row = Photo_TableSource_Column;
    static const std::array<Row_Column<Row>, 4> columns = {{
        {no_column, &Row::col_no},
        {path_column("photo_file_path"), &Row::photo_file_path},
        {size_column("photo_size"), &Row::photo_size},
        {id_column("photo_id"), &Row::photo_id},
    }};
    return columns;
}

Photo_TableSource_Column row_of(const sock_apk::PHOTO_RECORD& record, std::size_t number) {
    return {std::to_string(number), record.id, until_nul(record.file_path), record.size};
}

Listed_File file_of(const Photo_TableSource_Column& row) {
    return {row.col_no, row.photo_id, row.photo_file_path};
}

const std::array<Row_Column<Book_TableSource_Column>, 4>& Book_TableSource_Column::row_columns() {
    using Row = Book_TableSource_Column;
    static const std::array<Row_Column<Row>, 4> columns = {{
        {no_column, &Row::col_no},
        {path_column("book_file_path"), &Row::book_file_path},
        {{.identifier = "book_location", .title = "Location", .width = 20}, &Row::book_location},
        {size_column("book_size"), &Row::book_size},
    }};
    return columns;
}

Book_TableSource_Column row_of(const sock_apk::BOOK_RECORD& record, std::size_t number) {
    return {std::to_string(number), until_nul(record.file_path), record.size,
            until_nul(record.location)};
}

Listed_File file_of(const Book_TableSource_Column& row) {
    return {row.col_no, "", row.book_file_path};
}

}  // namespace velk
