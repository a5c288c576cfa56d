// How files on the card come into the catalogue of music, videos, photos and books.
#pragma once

#include <optional>
#include <string_view>

#include "demo_phone/phone_storage.h"
#include "demo_phone/phone_store.h"

namespace velk {

/// By the end of the file name; nothing for files that no list shows.
std::optional<Media_Kind> media_kind_of(std::string_view path);

/// Enters every such file below `folder`, known ones with their size of now; true when there was
/// one.
bool scan_media(Phone_Store& store, const Phone_Storage& storage, std::string_view folder);

/// The computer has copied something, and names it by the computer's own path. What bears that
/// name in one of the folders for added files is entered, a whole folder as well; false when there
/// is nothing of that name.
bool enter_added_file(Phone_Store& store, const Phone_Storage& storage,
                      std::string_view computer_path);

}  // namespace velk
