#include <gtest/gtest.h>

#include "agent/sock_apk.h"
#include "support/agent_double.h"

namespace velk {
namespace {

using namespace std::string_literals;

const auto number = Agent_Double::number;
const auto text = Agent_Double::field;

/// Reads a list with its own parser: all fields of all records, then what is left.
template <auto parser, auto field, auto... fields>
std::string read(const std::string& data, int start) {
    const auto record_of = []<class Record>(std::string Record::*) { return Record(); };
    std::vector<decltype(record_of(field))> records;
    const std::string left = parser(data, static_cast<int>(data.size()), 1, records, start);
    std::string all;
    for (const auto& one : records) all += one.*field + (... + ("," + one.*fields)) + ";";
    return all + left;
}
using App = sock_apk::APP_RECORD;
using Music = sock_apk::MUSIC_RECORD;
using Video = sock_apk::VIDEO_RECORD;
using Photo = sock_apk::PHOTO_RECORD;
using Book = sock_apk::BOOK_RECORD;
constexpr auto apps = read<sock_apk::get_app_list, &App::size, &App::second, &App::name,
                           &App::package, &App::version, &App::sixth>;
constexpr auto music = read<sock_apk::get_music_list, &Music::id, &Music::singer, &Music::zhuanji,
                            &Music::path, &Music::timer, &Music::size, &Music::is_ring>;
constexpr auto videos =
    read<sock_apk::get_video_list, &Video::id, &Video::file_path, &Video::timer, &Video::size>;
constexpr auto photos = read<sock_apk::get_photo_list, &Photo::id, &Photo::file_path, &Photo::size>;
constexpr auto books =
    read<sock_apk::get_book_list, &Book::file_path, &Book::size, &Book::location>;

TEST(Libraries, EveryListReadsItsOwnFieldsAndLeavesWhatIsCut) {
    const std::string app =
        text("1536") + text("day") + text("\xFF\0n"s) + text("p") + text("1.0") + text("f");
    const std::string song = number(65543) + text("singer") + text("album") + text("/m") +
                             text("3725999") + text("512") + "\1\2";
    const std::string film = number(7) + text("/v") + text("2147483647") + text("abc");
    const std::string photo = number(8) + text("/p") + text("1025");
    const std::string book = text("/b/x") + text("0") + text("/b"), cut = song.substr(0, 10);
    const std::string an_app = "1.50 KB,day,\xFF\0n,p,1.0,f;"s;
    const std::string a_song = "7,singer,album,/m,01:02:05,512.00 B,258;";
    const std::string later = "Music Checked.\n", id = "Music ID Checked.\n";
    const std::string first = "Music Singer Checked.\n", none = "--------\nmusic count =1\n";
    const struct {
        decltype(apps) list;
        std::string data;
        int start;
        std::string expected, trace;  // the trace's end
    } cases[] = {
        {apps, "headers" + app, 7, an_app, none},
        {apps, app + app.substr(0, 24), 0, an_app + app.substr(0, 24), id},
        {music, "headers" + song, 7, a_song, none},
        {music, song + "\0\0"s, 0, a_song + "\0\0"s, id},
        {music, song.substr(0, 7), 0, song.substr(0, 7), first},
        {music, cut, 0, cut, later},
        {music, song.substr(0, song.size() - 1), 0, song.substr(0, song.size() - 1), later},
        {videos, film, 0, "7,/v,596:31:23,0.00 B;", none},
        {photos, photo, 0, "8,/p,1.00 KB;", none},
        {photos, photo.substr(0, 16), 0, "8,/p,10.00 B;", none},
        {books, book, 0, "/b/x,0.00 B,/b;", none},
        {books, book.substr(0, book.size() - 1), 0, "/b/x,0.00 B,/;", none},
        {books, book + "\0"s, 0, "/b/x,0.00 B,/b;\0"s, first},
        {photos, "\0\0\0\0\0\0"s, 0, "", ""},  // fewer than a header
    };
    for (const auto& each : cases) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(each.list(each.data, each.start), each.expected);
        const std::string trace = testing::internal::GetCapturedStdout();
        EXPECT_TRUE(trace.ends_with(each.trace)) << each.expected << trace;
    }
}

TEST(LibrariesExchange, AListEndsWithARecordAndItsFieldsAreTracedAsTheyCame) {
    Agent_Double agent;
    Agent_Double::Reply open("headers" + number(7) + text("singer") + text("album") + text("/m") +
                             text("999") + text("512") + "\1\2");
    open.end = Agent_Double::Reply::End::stay_silent;
    agent.reply_to(115, open);
    std::vector<Music> records;
    testing::internal::CaptureStdout();
    EXPECT_EQ(sock_apk().send_command_get_music("115", records), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "\n\nsend:'s',[ASCII Value='115']\nEvery time Receive data length '52' :\n00:00:00"
              "\n7\nsinger\nalbum\n/m\n00:00:00\n512.00 B\n258\n--------\nmusic count =1\n"
              "\nreceive string length =52\ncount :1\n");
}

TEST(LibrariesExchange, EveryRecordArrivesHoweverTheReplyIsCut) {
    Agent_Double agent;
    std::string reply = "headers";
    for (std::size_t i = 0; i < 3000; ++i)
        reply += text(std::string(i % 150, 'p')) + text("1") + text(std::string(i % 150, 'p'));
    for (const std::size_t piece : {997U, 40960U}) {
        agent.reply_to(119, Agent_Double::in_pieces(reply, piece));
        std::vector<Book> books_read;
        sock_apk().send_command_get_book("119", books_read);
        ASSERT_EQ(books_read.size(), 3000U);
        for (const auto& book : books_read) EXPECT_EQ(book.location, book.file_path);
    }
}

}  // namespace
}  // namespace velk
