#include "agent/second_wire_edits.h"

#include <nlohmann/json.hpp>

#include "agent/second_wire.h"
#include "base/text.h"

namespace velk {

namespace {

using Json = nlohmann::json;

constexpr const char* no_result = "The phone did not confirm the change.";

constexpr const char* no_name =
    "The file's name is not UTF-8, so the phone cannot list it: rename the file, then add it "
    "again.";

/// An id has at most the digits of a number of 64 bits, and its sign.
constexpr std::size_t longest_id = 20;

std::string id_in(const simdjson::dom::object& record) {
    std::string id = text_of(record, "id");
    const bool is_number = id.find_first_not_of("-0123456789") == std::string::npos;
    return is_number && id.size() <= longest_id ? id : std::string();
}

Edit_Result result_in(const simdjson::dom::object& record) {
    const bool done = truth_of(record, "done");
    return {done, id_in(record), done ? "" : shown_reason(text_of(record, "message"))};
}

Edit_Result ask(const Json& request) {
    // Texts of a phone may hold ill-formed UTF-8, of which JSON has none.
    const std::string line = request.dump(-1, ' ', false, Json::error_handler_t::replace);
    Edit_Result result;
    const Wire_End end =
        ask_second_wire(line, [&](const auto& record) { result = result_in(record); });
    if (!result.done && result.reason.empty())
        result.reason = end.reason.empty() ? no_result : end.reason;
    return result;
}

Edit_Result edit(const char* operation, const char* kind, Json item) {
    return ask({{"op", operation}, {"kind", kind}, {"items", Json::array({std::move(item)})}});
}

}  // namespace

Edit_Result add_contact(const std::string& name, const std::string& number) {
    return edit("add", "contacts", {{"name", name}, {"number", number}});
}

Edit_Result change_contact(const std::string& id, const std::string& name,
                           const std::string& number) {
    return edit("change", "contacts", {{"id", id}, {"name", name}, {"number", number}});
}

Edit_Result delete_contact(const std::string& id) {
    return edit("delete", "contacts", {{"id", id}});
}

Edit_Result delete_all_contacts() {
    return ask({{"op", "delete"}, {"kind", "contacts"}, {"all", true}});
}

Edit_Result delete_message(const std::string& id, const std::string& thread) {
    return edit("delete", "messages", {{"id", id}, {"thread", thread}});
}

Edit_Result send_message(const std::string& number, const std::string& text) {
    return edit("send", "messages", {{"number", number}, {"text", text}});
}

Edit_Result add_file(const std::string& path) {
    // A line of the wire is UTF-8. The phone lists such a file, if at all, under another name.
    if (!is_utf8(path.substr(path.rfind('/') + 1))) return {false, "", no_name};
    return edit("add", "files", {{"path", path}});
}

Edit_Result delete_file(const char* kind, const std::string& id, const std::string& path) {
    Json item = {{"path", path}};
    if (!id.empty()) item["id"] = id;
    return edit("delete", kind, std::move(item));
}

}  // namespace velk
