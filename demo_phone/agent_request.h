// Requests to the agent: one byte, or a code, a length and a payload.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velk {

/// The codes of the requests. Those up to `list_books` are sent as a single byte, the others as a
/// framed request: code, 0, number of bytes from byte 6 on, three zeros, payload.
enum class Agent_Code {
    battery = 38,
    phone_size = 81,
    phone_free = 85,
    storage_size = 79,
    storage_free = 83,
    android_version = 75,
    model = 77,
    count_contacts = 65,
    count_messages = 66,
    count_apps = 67,
    count_photos = 68,
    count_music = 70,
    count_videos = 72,
    count_books = 74,
    agent_version = 114,
    goodbye = 90,
    list_contacts = 14,
    list_messages = 47,
    list_music = 115,
    list_apps = 116,
    list_videos = 117,
    list_photos = 118,
    list_books = 119,

    add_contact = 53,
    delete_contact = 122,
    modify_contact = 123,
    delete_all_contacts = 120,
    delete_message = 78,
    send_message = 50,
    delete_all_messages = 22,
    delete_music = 80,
    delete_video = 82,
    delete_photo = 84,
    delete_book = 57,
    add_music = 108,
    add_video = 109,
    add_photo = 110,
    add_book = 113,
};

enum class Request_State { complete, needs_more, unknown };

/// Whether `bytes` are one whole request. A framed request gives its length in 7 bits only, so a
/// long one is whole when the length fits as far as it goes and its closing mark is there.
Request_State state_of_request(std::string_view bytes);

// The payloads of whole requests; nothing when a request is not of that form. Lengths inside them
// have 7 bits too, so the marks and the request's real length decide.

struct Contact_Fields {
    std::string name;
    std::string tel;
    std::uint32_t id = 0;  // the low bits of the contact's own
};
std::optional<Contact_Fields> read_add_contact(std::string_view request);
std::optional<Contact_Fields> read_modify_contact(std::string_view request);
std::optional<std::uint32_t> read_delete_contact(std::string_view request);

struct Message_Key {
    int id_low_byte = 0;
    int thread_low_byte = 0;
};
std::optional<Message_Key> read_delete_message(std::string_view request);

struct Message_Fields {
    std::string tel;
    std::string text;
};
std::optional<Message_Fields> read_send_message(std::string_view request);

/// The path of an added file, or of a book to delete.
std::optional<std::string> read_path(std::string_view request);
/// The path of a music file, video or photo to delete; the id behind it adds nothing.
std::optional<std::string> read_delete_media(std::string_view request);

}  // namespace velk
