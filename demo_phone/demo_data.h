// The life that the phone starts with: the same every time, in many scripts, nobody's in truth.
#pragma once

#include <cstddef>

#include "demo_phone/phone_storage.h"
#include "demo_phone/phone_store.h"

namespace velk {

struct Demo_Amounts {
    std::size_t contacts = 240;
    std::size_t messages = 1500;
    std::size_t music = 60;
    std::size_t photos = 40;
    std::size_t videos = 8;
    std::size_t books = 12;
    std::size_t apps = 30;
    bool long_names = false;    // contacts of about 130 bytes each
    bool odd_contacts = false;  // some more contacts, whose names and numbers are hard to carry
};

/// Contacts, and messages exchanged with them.
void fill_people(Phone_Store& store, const Demo_Amounts& amounts);

/// Music, photos, videos and books with the files behind them, and the applications. Files that are
/// there already stay as they are. False when a file cannot be written.
bool fill_library(Phone_Store& store, Phone_Storage& storage, const Demo_Amounts& amounts);

}  // namespace velk
