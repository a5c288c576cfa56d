#include "demo_phone/agent_request.h"

#include <charconv>

#include "demo_phone/bytes.h"

namespace velk {

namespace {

constexpr std::size_t length_position = 2;
constexpr std::size_t frame_length = 6;       // code, 0 and the length of what follows
constexpr std::size_t payload_position = 10;  // behind the first field's length
constexpr std::size_t seven_bits = 128;

enum class Form { single_byte, framed, framed_with_mark, unknown };

Form form_of(unsigned code) {
    switch (static_cast<Agent_Code>(code)) {
        case Agent_Code::battery:
        case Agent_Code::phone_size:
        case Agent_Code::phone_free:
        case Agent_Code::storage_size:
        case Agent_Code::storage_free:
        case Agent_Code::android_version:
        case Agent_Code::model:
        case Agent_Code::count_contacts:
        case Agent_Code::count_messages:
        case Agent_Code::count_apps:
        case Agent_Code::count_photos:
        case Agent_Code::count_music:
        case Agent_Code::count_videos:
        case Agent_Code::count_books:
        case Agent_Code::agent_version:
        case Agent_Code::goodbye:
        case Agent_Code::list_contacts:
        case Agent_Code::list_messages:
        case Agent_Code::list_music:
        case Agent_Code::list_apps:
        case Agent_Code::list_videos:
        case Agent_Code::list_photos:
        case Agent_Code::list_books:
            return Form::single_byte;
        case Agent_Code::modify_contact:
        case Agent_Code::delete_all_contacts:
        case Agent_Code::delete_message:
        case Agent_Code::send_message:
        case Agent_Code::delete_all_messages:
            return Form::framed;
        case Agent_Code::add_contact:
        case Agent_Code::delete_contact:
        case Agent_Code::delete_music:
        case Agent_Code::delete_video:
        case Agent_Code::delete_photo:
        case Agent_Code::delete_book:
        case Agent_Code::add_music:
        case Agent_Code::add_video:
        case Agent_Code::add_photo:
        case Agent_Code::add_book:
            return Form::framed_with_mark;
    }
    return Form::unknown;
}

/// The payload of a request that ends in "|", without that mark.
std::optional<std::string_view> marked_payload(std::string_view request) {
    if (request.size() <= payload_position || request.back() != '|') return std::nullopt;
    request.remove_suffix(1);
    return request.substr(payload_position);
}

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

}  // namespace

Request_State state_of_request(std::string_view bytes) {
    if (bytes.empty()) return Request_State::needs_more;
    const Form form = form_of(byte_at(bytes, 0));
    if (form == Form::unknown) return Request_State::unknown;
    if (form == Form::single_byte) return Request_State::complete;
    if (bytes.size() < frame_length) return Request_State::needs_more;
    if ((bytes.size() - frame_length) % seven_bits != byte_at(bytes, length_position))
        return Request_State::needs_more;
    if (form == Form::framed_with_mark && bytes.back() != '|') return Request_State::needs_more;
    return Request_State::complete;
}

std::optional<Contact_Fields> read_add_contact(std::string_view request) {
    const auto payload = marked_payload(request);
    if (!payload) return std::nullopt;
    const std::size_t name_end = payload->find('*');
    if (name_end == std::string_view::npos) return std::nullopt;
    const std::string_view tel = payload->substr(name_end + 1);
    return Contact_Fields{std::string(payload->substr(0, name_end)),
                          std::string(tel.substr(0, tel.find('*'))), 0};
}

std::optional<Contact_Fields> read_modify_contact(std::string_view request) {
    if (request.size() < payload_position + 8) return std::nullopt;
    const std::string_view payload = request.substr(payload_position);
    // Behind the name stand the id and the number's length; where they fit, the name ends.
    for (std::size_t name = byte_at(request, frame_length); name + 8 <= payload.size();
         name += seven_bits) {
        const std::size_t tel = payload.size() - name - 8;
        if (byte_at(payload, name + 4) != tel % seven_bits) continue;
        if (payload.substr(name + 5, 3) != zeros(3)) continue;
        return Contact_Fields{std::string(payload.substr(0, name)),
                              std::string(payload.substr(name + 8)), little_at(payload, name)};
    }
    return std::nullopt;
}

std::optional<std::uint32_t> read_delete_contact(std::string_view request) {
    const auto payload = marked_payload(request);
    if (!payload) return std::nullopt;
    std::int64_t id = 0;  // may be written with a sign or without
    const auto [end, error] =
        std::from_chars(payload->data(), payload->data() + payload->size(), id);
    if (error != std::errc() || end != payload->data() + payload->size()) return std::nullopt;
    return static_cast<std::uint32_t>(id);
}

std::optional<Message_Key> read_delete_message(std::string_view request) {
    constexpr std::size_t whole_length = 14;
    if (request.size() != whole_length) return std::nullopt;
    return Message_Key{static_cast<int>(byte_at(request, 6)),
                       static_cast<int>(byte_at(request, 10))};
}

std::optional<Message_Fields> read_send_message(std::string_view request) {
    if (request.size() < payload_position) return std::nullopt;
    const std::string_view payload = request.substr(payload_position);
    const std::size_t tel_end = payload.find("*|");
    if (tel_end == std::string_view::npos) return std::nullopt;
    return Message_Fields{std::string(payload.substr(0, tel_end)),
                          std::string(payload.substr(tel_end + 2))};
}

std::optional<std::string> read_path(std::string_view request) {
    const auto payload = marked_payload(request);
    if (!payload) return std::nullopt;
    return std::string(*payload);
}

std::optional<std::string> read_delete_media(std::string_view request) {
    auto payload = marked_payload(request);
    if (!payload || !payload->ends_with('*')) return std::nullopt;
    payload->remove_suffix(1);
    const std::size_t path_end = payload->rfind('*');
    if (path_end == std::string_view::npos) return std::nullopt;
    return std::string(payload->substr(0, path_end));
}

}  // namespace velk
