#include "demo_phone/second_wire.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "demo_phone/second_wire_edits.h"
#include "demo_phone/wire_line.h"

namespace velk {

namespace {

using nlohmann::json;

constexpr int wire_version = 2;

Wire_Reply refusal(std::string_view code, std::string message) {
    return {{}, {code, std::move(message)}};
}

/// The few lines of a short reply.
Wire_Reply lines_reply(std::vector<std::string> lines) {
    return {[lines = std::move(lines), i = std::size_t{0}](std::string& out) mutable {
        if (i < lines.size()) out += lines[i];
        return i++ < lines.size();
    }};
}

std::string access_line(const Demo_Phone& phone, Wire_Kind kind) {
    std::string text;
    Wire_Line line(text);
    line.text("kind", name_of(kind)).flag("read", true);
    line.flag("write", !phone.settings.refuse_writes);
    if (phone.settings.refuse_writes) line.text("message", no_permission(kind));
    line.end();
    return text;
}

Wire_Reply hello(const Demo_Phone& phone) {
    std::vector<std::string> lines(1);
    Wire_Line(lines[0])
        .number("wire", wire_version)
        .text("agent", g_agent_version)
        .text("android", g_android_version)
        .number("api", g_android_api_level)
        .end();
    for (const Wire_Kind kind : g_wire_record_kinds) lines.push_back(access_line(phone, kind));
    return lines_reply(std::move(lines));
}

std::string count_line(const Phone_Store& store, Wire_Kind kind) {
    std::string text;
    Wire_Line(text)
        .text("kind", name_of(kind))
        .number("count", static_cast<std::int64_t>(count_records(store, kind)))
        .end();
    return text;
}

Wire_Reply count_all(const Phone_Store& store) {
    std::vector<std::string> lines;
    for (const Wire_Kind kind : g_wire_record_kinds) lines.push_back(count_line(store, kind));
    return lines_reply(std::move(lines));
}

Wire_Reply edit(Demo_Phone& phone, const Wire_Edit& edit, const json& request) {
    const auto all = request.find("all");
    if (all != request.end() && *all == true) {
        if (!edit.all) return refusal("not-possible", "Not all of these can be deleted at once.");
        return lines_reply({edit_all(phone, edit)});
    }
    const auto items = request.find("items");
    if (items == request.end() || !items->is_array())
        return refusal("bad-request", "The request has no items.");
    return {edit_items(phone, edit, *items)};
}

Wire_Reply answer_about(Demo_Phone& phone, const std::string& operation, Wire_Kind kind,
                        const json& request) {
    if (kind != Wire_Kind::files && operation == "list") return {list_records(phone.store, kind)};
    if (kind != Wire_Kind::files && operation == "count")
        return lines_reply({count_line(phone.store, kind)});
    if (const Wire_Edit* known = find_edit(operation, kind)) return edit(phone, *known, request);
    return refusal("not-possible",
                   "This agent cannot " + operation + " " + std::string(name_of(kind)) + ".");
}

bool is_operation(std::string_view name) {
    for (const std::string_view known :
         {"hello", "count", "list", "add", "change", "delete", "send"})
        if (known == name) return true;
    return false;
}

}  // namespace

Wire_Reply answer_line(Demo_Phone& phone, std::string_view line) {
    const json request = json::parse(line, nullptr, false);
    if (!request.is_object()) return refusal("bad-request", "The line is no JSON object.");
    const auto operation = member_text(request, "op");
    if (!operation || operation->empty())
        return refusal("bad-request", "The request names no operation.");
    if (!is_operation(*operation))
        return refusal("unknown-operation", "This agent does not know this operation.");
    if (*operation == "hello") return hello(phone);
    const auto name = member_text(request, "kind");
    if (*operation == "count" && name && name->empty()) return count_all(phone.store);
    if (!name || name->empty()) return refusal("bad-request", "The request names no kind.");
    const auto kind = wire_kind(*name);
    if (!kind) return refusal("unknown-kind", "This agent does not know this kind.");
    return answer_about(phone, *operation, *kind, request);
}

}  // namespace velk
