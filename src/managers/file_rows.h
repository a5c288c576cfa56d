// The rows of the sections that list files: music, videos, photos and books.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "agent/sock_apk.h"
#include "ui/table.h"

namespace velk {

/// What a command needs of a row.
struct Listed_File {
    std::string number;  // the row's, as it is shown
    std::string id;      // the phone's own; a book has none
    std::string path;    // on the phone
};

// The fields are named as their columns. Each kind of row knows the record that it is made of, and
// how the records are fetched; row_of() makes it, `number` being its place in load order, from 1,
// and file_of() gives what commands need.

struct Music_TableSource_Column {
    std::string col_no;  // place in load order, from "1"; kept when the table is sorted
    std::string music_id;
    std::string music_zhuanji;  // the album
    std::string music_singer;
    std::string music_path;
    std::string music_timer;
    std::string music_size;
    std::string music_is_ring;

    using Record = sock_apk::MUSIC_RECORD;
    static constexpr auto fetch = &sock_apk::send_command_get_music;
    static const std::array<Row_Column<Music_TableSource_Column>, 8>& row_columns();
};
Music_TableSource_Column row_of(const sock_apk::MUSIC_RECORD& record, std::size_t number);
Listed_File file_of(const Music_TableSource_Column& row);

struct Video_TableSource_Column {
    std::string col_no;
    std::string video_id;
    std::string video_file_path;
    std::string video_timer;
    std::string video_size;

    using Record = sock_apk::VIDEO_RECORD;
    static constexpr auto fetch = &sock_apk::send_command_get_video;
    static const std::array<Row_Column<Video_TableSource_Column>, 5>& row_columns();
};
Video_TableSource_Column row_of(const sock_apk::VIDEO_RECORD& record, std::size_t number);
Listed_File file_of(const Video_TableSource_Column& row);

struct Photo_TableSource_Column {
    std::string col_no;
    std::string photo_id;
    std::string photo_file_path;
    std::string photo_size;

    using Record = sock_apk::PHOTO_RECORD;
    static constexpr auto fetch = &sock_apk::send_command_get_photo;
    static const std::array<Row_Column<Photo_TableSource_Column>, 4>& row_columns();
};
Photo_TableSource_Column row_of(const sock_apk::PHOTO_RECORD& record, std::size_t number);
Listed_File file_of(const Photo_TableSource_Column& row);

struct Book_TableSource_Column {
    std::string col_no;
    std::string book_file_path;
    std::string book_size;
    std::string book_location;  // as the phone has it, which may be nothing

    using Record = sock_apk::BOOK_RECORD;
    static constexpr auto fetch = &sock_apk::send_command_get_book;
    static const std::array<Row_Column<Book_TableSource_Column>, 4>& row_columns();
};
Book_TableSource_Column row_of(const sock_apk::BOOK_RECORD& record, std::size_t number);
Listed_File file_of(const Book_TableSource_Column& row);

}  // namespace velk
