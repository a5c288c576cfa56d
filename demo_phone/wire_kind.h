// What the requests of the second wire are about.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "demo_phone/phone_store.h"

namespace velk {

/// Of `files` there are no records: it is a kind in an "add" alone.
enum class Wire_Kind { contacts, messages, applications, music, photos, videos, books, files };

/// In the order of Wire_Kind.
inline constexpr std::array<std::string_view, 8> g_wire_kind_names = {
    "contacts", "messages", "applications", "music", "photos", "videos", "books", "files"};

/// The kinds that have records.
inline constexpr std::array<Wire_Kind, 7> g_wire_record_kinds = {
    Wire_Kind::contacts, Wire_Kind::messages, Wire_Kind::applications, Wire_Kind::music,
    Wire_Kind::photos,   Wire_Kind::videos,   Wire_Kind::books};

inline constexpr std::string_view name_of(Wire_Kind kind) {
    return g_wire_kind_names[static_cast<std::size_t>(kind)];
}

inline std::optional<Wire_Kind> wire_kind(std::string_view name) {
    for (std::size_t i = 0; i < g_wire_kind_names.size(); ++i)
        if (g_wire_kind_names[i] == name) return static_cast<Wire_Kind>(i);
    return std::nullopt;
}

/// For music, photos, videos and books; the value for other kinds means nothing.
inline constexpr Media_Kind media_kind(Wire_Kind kind) {
    switch (kind) {
        case Wire_Kind::music:
            return Media_Kind::music;
        case Wire_Kind::photos:
            return Media_Kind::photo;
        case Wire_Kind::videos:
            return Media_Kind::video;
        default:
            return Media_Kind::book;
    }
}

}  // namespace velk
