#include <algorithm>
#include <cstdio>
#include <string>

#include "demo_phone/demo_data.h"
#include "demo_phone/demo_files.h"
#include "demo_phone/demo_words.h"
#include "demo_phone/media_scan.h"

namespace velk {

namespace {

/// Beyond this many files of a kind they are made very small, so that thousands stay quick.
constexpr std::size_t full_size_until = 200;

/// What tells a second round of the same words from the first.
std::string round_mark(std::size_t index, std::size_t period) {
    return index < period ? "" : " (" + std::to_string(index / period + 1) + ")";
}

/// Files are an hour and a half younger each than the one before, from New Year 2024 on.
std::uint32_t file_time(std::size_t index) {
    return static_cast<std::uint32_t>(1704067200 + index * 5400);
}

/// Writes the file unless it is there, and enters it with its real size.
template <typename Make>
bool enter(Phone_Store& store, Phone_Storage& storage, Phone_Media media, std::size_t index,
           const Make& make) {
    if (!storage.facts(media.path).is_file() &&
        !(storage.write(media.path, make()) && storage.set_time(media.path, file_time(index))))
        return false;
    media.size = storage.facts(media.path).size;
    return store.add_media(std::move(media));
}

bool add_song(Phone_Store& store, Phone_Storage& storage, std::size_t index, bool small) {
    const auto bands = demo_bands();
    constexpr std::size_t songs = std::size(Demo_Band{}.songs);
    const Demo_Band& band = bands[index / songs % bands.size()];
    const std::string title =
        std::string(band.songs[index % songs]) + round_mark(index, bands.size() * songs);
    const std::size_t seconds = small ? 1 + index % 3 : 95 + index * 37 % 190;
    Phone_Media media;
    media.kind = Media_Kind::music;
    media.artist = band.name;
    media.album = band.album;
    media.path = "/sdcard/music/" + media.artist + "/" + title + ".wav";
    media.duration = static_cast<int>(seconds * 1000);
    media.ring = index % 15 == 14;
    return enter(store, storage, media, index,
                 [&] { return demo_sound(seconds, static_cast<unsigned>(index)); });
}

bool add_photo(Phone_Store& store, Phone_Storage& storage, std::size_t index, bool small) {
    char name[64];
    std::snprintf(name, sizeof name, "IMG_2024%02zu%02zu_%06zu", index / 28 % 12 + 1,
                  index % 28 + 1, 81500 + index * 7);
    Phone_Media media;
    media.kind = Media_Kind::photo;
    media.path = std::string("/sdcard/photo/") + name;
    if (index % 3 == 2) media.path.append(" ").append(pick(demo_photo_subjects(), index / 3));
    media.path += ".png";
    const std::size_t width = small ? 8 : 96 + index * 8 % 56;
    const std::size_t height = small ? 6 : width * 3 / 4;
    return enter(store, storage, media, index,
                 [&] { return demo_picture(width, height, static_cast<unsigned>(index)); });
}

bool add_video(Phone_Store& store, Phone_Storage& storage, std::size_t index, bool small) {
    const Demo_Words titles = demo_video_titles();
    const std::size_t seconds = small ? 1 : 9 + index * 5 % 14;
    Phone_Media media;
    media.kind = Media_Kind::video;
    media.path = "/sdcard/movies/" + std::string(pick(titles, index)) +
                 round_mark(index, titles.size()) + ".avi";
    media.duration = static_cast<int>(seconds * 1000);
    return enter(store, storage, media, index,
                 [&] { return demo_film(seconds, static_cast<unsigned>(index)); });
}

/// Some pages of text: the sentences of all languages, in an order of the book's own.
std::string book_text(std::size_t index, std::size_t paragraphs) {
    std::string text;
    const auto languages = demo_languages();
    for (std::size_t i = 0; i < paragraphs; ++i) {
        const Demo_Words sentences = languages[(i + index) % languages.size()].sentences;
        for (std::size_t j = 0; j < sentences.size(); ++j)
            text.append(pick(sentences, index + i + j)).append(" ");
        text += "\n\n";
    }
    return text;
}

bool add_book(Phone_Store& store, Phone_Storage& storage, std::size_t index, bool small) {
    const Demo_Words titles = demo_book_titles();
    const std::string title(pick(titles, index));
    const bool electronic = index % 2 == 0;
    Phone_Media media;
    media.kind = Media_Kind::book;
    media.path = "/sdcard/book/" + title + round_mark(index, titles.size()) +
                 (electronic ? ".epub" : ".txt");
    return enter(store, storage, media, index, [&] {
        const std::string text = book_text(index, small ? 1 : 10 + index * 5);
        return electronic ? demo_epub(title, text) : title + "\n\n" + text;
    });
}

void add_app(Phone_Store& store, std::size_t index) {
    const Demo_Words names = demo_app_names();
    Phone_App app;
    app.name = std::string(pick(names, index)) + round_mark(index, names.size());
    app.package = "demo.app" + std::to_string(index + 1) + ".main";
    app.version = std::to_string(1 + index % 4) + "." + std::to_string(index * 3 % 10) + "." +
                  std::to_string(index * 7 % 10);
    char day[16];
    std::snprintf(day, sizeof day, "2024-%02zu-%02zu", index % 12 + 1, index * 5 % 28 + 1);
    app.installed = day;
    app.size = 180000 + index * index * 91357 % 48000000;
    store.install(app);
}

using Add_File = bool (*)(Phone_Store&, Phone_Storage&, std::size_t, bool);

bool add_files(Phone_Store& store, Phone_Storage& storage, Add_File add, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        if (!add(store, storage, i, count > full_size_until)) return false;
    return true;
}

}  // namespace

bool fill_library(Phone_Store& store, Phone_Storage& storage, const Demo_Amounts& amounts) {
    for (const char* folder : {"/sdcard/music", "/sdcard/movies", "/sdcard/photo", "/sdcard/book"})
        if (!storage.make_folders(folder)) return false;
    for (std::size_t i = 0; i < amounts.apps; ++i) add_app(store, i);
    return add_files(store, storage, add_song, amounts.music) &&
           add_files(store, storage, add_photo, amounts.photos) &&
           add_files(store, storage, add_video, amounts.videos) &&
           add_files(store, storage, add_book, amounts.books);
}

}  // namespace velk
