// The second wire to the agent: one JSON object in a line, nothing lost (docs/protocol.md).
//
// For the files of this folder alone: what the rest of the program sees is sock_apk.
#pragma once

#include <simdjson.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace velk {

/// A member's text; empty when it is missing or something else.
std::string text_of(const simdjson::dom::object& record, const char* member);
/// A whole number; 0 when it is missing or something else.
std::int64_t number_of(const simdjson::dom::object& record, const char* member);
/// False when it is missing or something else.
bool truth_of(const simdjson::dom::object& record, const char* member);

/// How a reply ended.
struct Wire_End {
    /// The agent said how many records there are, and all of them came.
    bool whole = false;
    /// Why not: the agent's own words, or ours. A short sentence for a person.
    std::string reason;
    /// Not even one line came on a connection that was accepted: nobody listens on the phone yet,
    /// or nobody answers there.
    bool has_no_line = false;
};

using On_Record = std::function<void(const simdjson::dom::object&)>;

/// Sends the request, a JSON object without a line break, and calls `on_record` for each record.
/// Worker; blocks until the reply ends, at most for `time` when it is given.
Wire_End ask_second_wire(std::string_view request, const On_Record& on_record,
                         std::optional<std::chrono::milliseconds> time = {});

/// Words of the agent as they may be shown: one line of well-formed UTF-8, not too long, without
/// characters that change the direction of what stands around them.
std::string shown_reason(std::string_view words);

}  // namespace velk
