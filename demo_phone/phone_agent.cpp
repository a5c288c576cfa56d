#include "demo_phone/phone_agent.h"

#include <algorithm>

#include "demo_phone/agent_reply.h"
#include "demo_phone/bytes.h"
#include "demo_phone/demo_phone.h"
#include "demo_phone/media_scan.h"
#include "demo_phone/phone_edits.h"

namespace velk {

namespace {

// Sizes below 2 GB: the computer reads them as signed 32-bit numbers.
constexpr std::uint64_t phone_size = 2013265920;
constexpr std::uint64_t phone_free = 734003200;
constexpr std::uint64_t storage_size = 2040109465;
constexpr std::uint64_t storage_used_by_others = 612368384;

std::uint64_t storage_free(const Demo_Phone& phone) {
    const std::uint64_t used = storage_used_by_others + phone.storage.used_bytes();
    return phone.behaviour.storage_full || used > storage_size ? 0 : storage_size - used;
}

/// The text of a value request; empty for other requests.
std::string value_of(const Demo_Phone& phone, Agent_Code code) {
    const Phone_Store& store = phone.store;
    switch (code) {
        case Agent_Code::phone_size:
            return std::to_string(phone_size);
        case Agent_Code::phone_free:
            return std::to_string(phone_free);
        case Agent_Code::storage_size:
            return std::to_string(storage_size);
        case Agent_Code::storage_free:
            return std::to_string(storage_free(phone));
        case Agent_Code::android_version:
            return std::string(g_android_version);
        case Agent_Code::model:
            return phone.settings.model;
        case Agent_Code::count_contacts:
            return std::to_string(store.contacts().size());
        case Agent_Code::count_messages:
            return std::to_string(store.messages().size());
        case Agent_Code::count_apps:
            return std::to_string(store.apps().size());
        case Agent_Code::count_photos:
            return std::to_string(store.count(Media_Kind::photo));
        case Agent_Code::count_music:
            return std::to_string(store.count(Media_Kind::music));
        case Agent_Code::count_videos:
            return std::to_string(store.count(Media_Kind::video));
        case Agent_Code::count_books:
            return std::to_string(store.count(Media_Kind::book));
        case Agent_Code::agent_version:
            return std::string(g_agent_version);
        case Agent_Code::goodbye:
            return "1";
        default:
            return "";
    }
}

/// The bytes of a list request; empty for other requests.
std::string list_of(const Demo_Phone& phone, Agent_Code code) {
    const Phone_Store& store = phone.store;
    switch (code) {
        case Agent_Code::list_contacts:
            return contact_list(store.contacts());
        case Agent_Code::list_messages:
            return message_list(store.messages(), phone.settings.messages_per_packet);
        case Agent_Code::list_apps:
            return app_list(store.apps());
        case Agent_Code::list_music:
            return media_list(Media_Kind::music, store.media(Media_Kind::music));
        case Agent_Code::list_videos:
            return media_list(Media_Kind::video, store.media(Media_Kind::video));
        case Agent_Code::list_photos:
            return media_list(Media_Kind::photo, store.media(Media_Kind::photo));
        case Agent_Code::list_books:
            return media_list(Media_Kind::book, store.media(Media_Kind::book));
        default:
            return "";
    }
}

std::string add_contact(Demo_Phone& phone, std::string_view request) {
    const auto contact = read_add_contact(request);
    if (!contact) return "";
    const auto id = phone.store.add_contact(contact->name, contact->tel);
    return id ? contact_id_reply(*id) : "";
}

bool modify_contact(Demo_Phone& phone, std::string_view request) {
    const auto contact = read_modify_contact(request);
    return contact && phone.store.modify_contact(phone.store.whole_id(contact->id), contact->name,
                                                 contact->tel);
}

bool delete_contact(Demo_Phone& phone, std::string_view request) {
    const auto id = read_delete_contact(request);
    return id && phone.store.delete_contact(phone.store.whole_id(*id));
}

bool delete_message(Demo_Phone& phone, std::string_view request) {
    const auto key = read_delete_message(request);
    // Every delete comes in three forms for three kinds of phones: the second and third find the
    // message gone, which is what they ask for.
    return key && phone.store.delete_message_by_bytes(key->id_low_byte, key->thread_low_byte) <= 1;
}

bool send_message(Demo_Phone& phone, std::string_view request) {
    const auto fields = read_send_message(request);
    return fields && velk::send_message(phone.store, fields->tel, fields->text);
}

bool delete_file(Demo_Phone& phone, Media_Kind kind, const std::optional<std::string>& path) {
    return path && velk::delete_file(phone.store, phone.storage, kind, *path);
}

/// Carries out an edit that is answered with a bare "done"; false when nothing was changed.
bool edit(Demo_Phone& phone, Agent_Code code, std::string_view request) {
    switch (code) {
        case Agent_Code::modify_contact:
            return modify_contact(phone, request);
        case Agent_Code::delete_contact:
            return delete_contact(phone, request);
        case Agent_Code::delete_all_contacts:
            phone.store.delete_all_contacts();
            return true;
        case Agent_Code::delete_message:
            return delete_message(phone, request);
        case Agent_Code::send_message:
            return send_message(phone, request);
        case Agent_Code::delete_all_messages:
            phone.store.delete_all_messages();
            return true;
        case Agent_Code::delete_music:
            return delete_file(phone, Media_Kind::music, read_delete_media(request));
        case Agent_Code::delete_video:
            return delete_file(phone, Media_Kind::video, read_delete_media(request));
        case Agent_Code::delete_photo:
            return delete_file(phone, Media_Kind::photo, read_delete_media(request));
        case Agent_Code::delete_book:
            return delete_file(phone, Media_Kind::book, read_path(request));
        case Agent_Code::add_music:
        case Agent_Code::add_video:
        case Agent_Code::add_photo:
        case Agent_Code::add_book: {
            const auto path = read_path(request);
            return path && enter_added_file(phone.store, phone.storage, *path);
        }
        default:
            return false;
    }
}

}  // namespace

bool Agent_Life::start() {
    if (state_ == State::installed) state_ = State::started;
    return installed();
}

void Agent_Life::wake() {
    if (state_ == State::started) state_ = State::listening;
}

std::string_view Agent_Life::describe() const {
    switch (state_) {
        case State::absent:
            return "absent";
        case State::installed:
            return "installed";
        case State::started:
            return "started";
        case State::listening:
            break;
    }
    return "listening";
}

Agent_Answer answer_request(Demo_Phone& phone, std::string_view request) {
    const auto code = static_cast<Agent_Code>(byte_at(request, 0));
    if (code == Agent_Code::battery) return {battery_reply(phone.battery)};
    if (std::string value = value_of(phone, code); !value.empty())
        return {value_reply(code, value)};
    // The contacts reader goes on until the connection ends; the readers of the other lists know
    // their end and close by themselves.
    if (std::string list = list_of(phone, code); !list.empty())
        return {std::move(list), code == Agent_Code::list_contacts};
    if (phone.settings.refuse_writes) return {};
    if (code == Agent_Code::add_contact) return {add_contact(phone, request)};
    return {edit(phone, code, request) ? done_reply(code) : ""};
}

}  // namespace velk
