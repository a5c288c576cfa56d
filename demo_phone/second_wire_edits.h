// The edits of the second wire: each item of a request is carried out and answered by itself.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "demo_phone/demo_phone.h"
#include "demo_phone/wire_records.h"

namespace velk {

/// What became of one item.
struct Item_Result {
    std::string_view code;  // empty: it is done
    std::string_view message{};
    std::optional<std::int64_t> id{};  // of a new record
};

/// One operation on one kind.
struct Wire_Edit {
    std::string_view operation;
    Wire_Kind kind;
    Item_Result (*one)(Demo_Phone& phone, Wire_Kind kind, const nlohmann::json& item);
    std::size_t (*all)(Demo_Phone& phone) = nullptr;  // the number of records; null: not possible
};

/// Null when the agent does not have it.
const Wire_Edit* find_edit(std::string_view operation, Wire_Kind kind);

/// Carries out the edit for each of `items`, an array. The results' lines are made as they are
/// asked for.
Record_Source edit_items(Demo_Phone& phone, const Wire_Edit& edit, const nlohmann::json& items);

/// Carries out an edit that has `all`: the line of its result.
std::string edit_all(Demo_Phone& phone, const Wire_Edit& edit);

/// The sentence that every edit is refused with when the agent may change nothing.
std::string no_permission(Wire_Kind kind);

/// A member that is a text; empty when it is missing, nothing when it is of another type.
std::optional<std::string> member_text(const nlohmann::json& object, const char* name);

}  // namespace velk
