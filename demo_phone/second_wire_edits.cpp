#include "demo_phone/second_wire_edits.h"

#include <charconv>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "demo_phone/media_scan.h"
#include "demo_phone/phone_edits.h"
#include "demo_phone/wire_line.h"

namespace velk {

namespace {

using nlohmann::json;

constexpr Item_Result done{""};
constexpr Item_Result bad_item{"bad-request", "The item lacks what the operation needs."};
constexpr Item_Result gone{"gone", "There is no such record any more."};

/// An id is decimal text; nothing for another text.
std::optional<std::int64_t> member_id(const json& item, const char* name) {
    const auto text = member_text(item, name);
    if (!text) return std::nullopt;
    std::int64_t id = 0;
    const char* const text_end = text->data() + text->size();
    const auto [end, error] = std::from_chars(text->data(), text_end, id);
    if (error != std::errc() || end != text_end) return std::nullopt;
    return id;
}

Item_Result add_contact(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto name = member_text(item, "name");
    const auto number = member_text(item, "number");
    if (!name || !number) return bad_item;
    const auto id = phone.store.add_contact(*name, *number);
    if (!id) return {"failed", "The phone has no room for another contact."};
    return {"", "", id};
}

Item_Result add_file(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto path = member_text(item, "path");
    if (!path || path->empty()) return bad_item;
    if (enter_added_file(phone.store, phone.storage, *path)) return done;
    return {"failed", "There is no such file in the folders that files are copied to."};
}

Item_Result change_contact(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto id = member_id(item, "id");
    const auto name = member_text(item, "name");
    const auto number = member_text(item, "number");
    if (!id || !name || !number) return bad_item;
    return phone.store.modify_contact(*id, *name, *number) ? done : gone;
}

Item_Result delete_contact(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto id = member_id(item, "id");
    if (!id) return bad_item;
    return phone.store.delete_contact(*id) ? done : gone;
}

std::size_t delete_all_contacts(Demo_Phone& phone) {
    const std::size_t count = phone.store.contacts().size();
    phone.store.delete_all_contacts();
    return count;
}

Item_Result delete_message(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto id = member_id(item, "id");
    const auto thread = member_id(item, "thread");
    if (!id || !thread) return bad_item;
    const Phone_Message* message = phone.store.messages().find(*id);
    if (!message || message->thread != *thread) return gone;
    return phone.store.delete_message(*id) ? done : gone;
}

Item_Result delete_media(Demo_Phone& phone, Wire_Kind kind, const json& item) {
    const auto path = member_text(item, "path");
    if (!path || path->empty()) return bad_item;
    if (kind != Wire_Kind::books) {
        const auto id = member_id(item, "id");
        if (!id) return bad_item;
        const Phone_Media* media = phone.store.find_media(*path);
        if (!media || media->id != *id) return gone;
    }
    return delete_file(phone.store, phone.storage, media_kind(kind), *path) ? done : gone;
}

Item_Result send(Demo_Phone& phone, Wire_Kind, const json& item) {
    const auto number = member_text(item, "number");
    const auto text = member_text(item, "text");
    if (!number || !text || number->empty()) return bad_item;
    if (send_message(phone.store, *number, *text)) return done;
    return {"not-sent", "The phone could not send the message."};
}

constexpr Wire_Edit edits[] = {
    {"add", Wire_Kind::contacts, add_contact},
    {"add", Wire_Kind::files, add_file},
    {"change", Wire_Kind::contacts, change_contact},
    {"delete", Wire_Kind::contacts, delete_contact, delete_all_contacts},
    {"delete", Wire_Kind::messages, delete_message},
    {"delete", Wire_Kind::music, delete_media},
    {"delete", Wire_Kind::photos, delete_media},
    {"delete", Wire_Kind::videos, delete_media},
    {"delete", Wire_Kind::books, delete_media},
    {"send", Wire_Kind::messages, send},
};

Wire_Line result_line(std::string& lines, std::size_t item, const Item_Result& result) {
    Wire_Line line(lines);
    line.number("item", static_cast<std::int64_t>(item)).flag("done", result.code.empty());
    if (result.id) line.id("id", *result.id);
    if (!result.code.empty()) line.text("code", result.code).text("message", result.message);
    return line;
}

}  // namespace

std::optional<std::string> member_text(const json& object, const char* name) {
    if (!object.is_object()) return std::nullopt;
    const auto member = object.find(name);
    if (member == object.end()) return "";
    if (!member->is_string()) return std::nullopt;
    return member->get<std::string>();
}

const Wire_Edit* find_edit(std::string_view operation, Wire_Kind kind) {
    for (const Wire_Edit& edit : edits)
        if (edit.operation == operation && edit.kind == kind) return &edit;
    return nullptr;
}

std::string no_permission(Wire_Kind kind) {
    return "The phone does not let Velk change " + std::string(name_of(kind)) + ".";
}

Record_Source edit_items(Demo_Phone& phone, const Wire_Edit& edit, const json& items) {
    if (phone.settings.refuse_writes)
        return [count = items.size(), refused = no_permission(edit.kind),
                i = std::size_t{0}](std::string& lines) mutable {
            if (i < count) result_line(lines, i, {"permission", refused}).end();
            return i++ < count;
        };
    std::vector<Item_Result> results;
    results.reserve(items.size());
    for (const json& item : items) results.push_back(edit.one(phone, edit.kind, item));
    return [results = std::move(results), i = std::size_t{0}](std::string& lines) mutable {
        if (i < results.size()) result_line(lines, i, results[i]).end();
        return i++ < results.size();
    };
}

std::string edit_all(Demo_Phone& phone, const Wire_Edit& edit) {
    std::string line;
    if (phone.settings.refuse_writes)
        result_line(line, 0, {"permission", no_permission(edit.kind)}).end();
    else
        result_line(line, 0, done)
            .number("count", static_cast<std::int64_t>(edit.all(phone)))
            .end();
    return line;
}

}  // namespace velk
