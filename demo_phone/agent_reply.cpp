#include "demo_phone/agent_reply.h"

#include "demo_phone/bytes.h"

namespace velk {

namespace {

/// A field's length is read in 16 bits.
constexpr std::size_t longest_text = 65535;
/// A message packet gives its length in 16 bits; with one more message it stays below them.
constexpr std::size_t full_packet = longest_text - g_longest_message - 1024;

/// Header and records: 0, the code, the number of bytes from byte 6 on, and a zero.
std::string framed(Agent_Code code, std::string_view records) {
    std::string out;
    append_big(out, 0, 1);
    append_big(out, static_cast<unsigned>(code), 1);
    append_big(out, records.size() + 1);
    append_big(out, 0, 1);
    return out.append(records);
}

void append_text(std::string& out, std::string_view text) {
    text = text.substr(0, longest_text);
    append_big(out, text.size());
    out += text;
}

void append_number(std::string& out, std::uint64_t number) {
    append_text(out, std::to_string(number));
}

void append_record(std::string& out, const Phone_Message& message) {
    append_text(out, message.tel);
    append_text(out, message.text);
    append_text(out, message.date);
    append_big(out, static_cast<unsigned>(message.type), 2);
    append_big(out, static_cast<std::uint32_t>(message.id));
    append_big(out, static_cast<std::uint32_t>(message.thread));
    append_big(out, message.read ? 1 : 0, 2);
}

void append_record(std::string& out, const Phone_Media& media) {
    const auto id = static_cast<std::uint32_t>(media.id);
    const auto duration = static_cast<unsigned>(media.duration);
    switch (media.kind) {
        case Media_Kind::music:
            append_big(out, id);
            append_text(out, media.artist);
            append_text(out, media.album);
            append_text(out, media.path);
            append_number(out, duration);
            append_number(out, media.size);
            append_big(out, media.ring ? 1 : 0, 2);
            return;
        case Media_Kind::video:
            append_big(out, id);
            append_text(out, media.path);
            append_number(out, duration);
            append_number(out, media.size);
            return;
        case Media_Kind::photo:
            append_big(out, id);
            append_text(out, media.path);
            append_number(out, media.size);
            return;
        case Media_Kind::book:
            append_text(out, media.path);
            append_number(out, media.size);
            append_text(out, media.path.substr(0, media.path.rfind('/')));
            return;
    }
}

Agent_Code list_code(Media_Kind kind) {
    switch (kind) {
        case Media_Kind::music:
            return Agent_Code::list_music;
        case Media_Kind::video:
            return Agent_Code::list_videos;
        case Media_Kind::photo:
            return Agent_Code::list_photos;
        case Media_Kind::book:
            break;
    }
    return Agent_Code::list_books;
}

}  // namespace

std::string value_reply(Agent_Code code, std::string_view value) {
    constexpr std::size_t longest_value = 127;
    value = value.substr(0, longest_value);
    std::string out;
    append_big(out, 0, 1);
    append_big(out, static_cast<unsigned>(code), 1);
    append_big(out, value.size() + 4);
    append_text(out, value);
    return out;
}

std::string battery_reply(int level) {
    return framed(Agent_Code::battery, std::string(1, static_cast<char>(level)));
}

std::string contact_id_reply(std::int64_t id) {
    std::string record;
    append_number(record, static_cast<std::uint32_t>(id));
    return framed(Agent_Code::add_contact, record);
}

std::string done_reply(Agent_Code code) {
    return framed(code, std::string(1, '\1'));
}

std::string contact_list(const Phone_Store::Contacts& contacts) {
    std::string records;
    for (const Phone_Contact& contact : contacts) {
        append_number(records, static_cast<std::uint32_t>(contact.id));
        append_text(records, contact.name);
        append_text(records, contact.tel);
    }
    return framed(Agent_Code::list_contacts, records);
}

std::string app_list(const std::vector<Phone_App>& apps) {
    std::string records;
    for (const Phone_App& app : apps) {
        append_number(records, app.size);
        append_text(records, app.installed);
        append_text(records, app.name);
        append_text(records, app.package);
        append_text(records, app.version);
        append_text(records, "/data/app/" + app.package + ".apk");
    }
    return framed(Agent_Code::list_apps, records);
}

std::string media_list(Media_Kind kind, const std::vector<Phone_Media>& media) {
    std::string records;
    for (const Phone_Media& one : media) append_record(records, one);
    return framed(list_code(kind), records);
}

std::string message_list(const Phone_Store::Messages& messages, std::size_t per_packet) {
    std::string out;
    std::string records;
    std::size_t count = 0;
    for (const Phone_Message& message : messages) {
        append_record(records, message);
        if (++count < per_packet && records.size() < full_packet) continue;
        out += framed(Agent_Code::list_messages, records);
        records.clear();
        count = 0;
    }
    if (!records.empty()) out += framed(Agent_Code::list_messages, records);
    return out + framed(Agent_Code::list_messages, "");
}

}  // namespace velk
