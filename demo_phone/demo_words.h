// The words of the demo data: small tables that are combined into names, messages and titles.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace velk {

using Demo_Words = std::span<const std::string_view>;

/// How people of one language are called and what they write.
struct Demo_Language {
    std::string_view country;  // what their phone numbers begin with
    Demo_Words given;
    Demo_Words family;
    bool family_first;
    std::string_view between;  // of the two parts of a name
    Demo_Words greetings;
    Demo_Words sentences;
    Demo_Words closings;
};

std::span<const Demo_Language> demo_languages();

/// Contacts that are no plain names: with pictures, very long, with marks that files care about.
Demo_Words demo_special_names();

/// A band, its one record, and the songs on it.
struct Demo_Band {
    std::string_view name;
    std::string_view album;
    std::string_view songs[4];
};

std::span<const Demo_Band> demo_bands();

Demo_Words demo_photo_subjects();
Demo_Words demo_video_titles();
Demo_Words demo_book_titles();
Demo_Words demo_app_names();

/// The word at `index`, beginning anew at the end.
inline std::string_view pick(Demo_Words words, std::size_t index) {
    return words[index % words.size()];
}

}  // namespace velk
