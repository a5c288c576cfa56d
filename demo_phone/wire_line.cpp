#include "demo_phone/wire_line.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velk {

namespace {

/// Printable ASCII that stands for itself between the quotes of JSON.
bool is_plain(char character) {
    return character >= ' ' && character <= '~' && character != '"' && character != '\\';
}

}  // namespace

void Wire_Line::name(std::string_view name) {
    out_ += before_name_;
    before_name_ = ',';
    out_.append("\"").append(name).append("\":");
}

Wire_Line& Wire_Line::text(std::string_view member, std::string_view value) {
    using nlohmann::json;
    name(member);
    if (std::all_of(value.begin(), value.end(), is_plain))
        out_.append("\"").append(value).append("\"");
    else
        out_ += json(value).dump(-1, ' ', false, json::error_handler_t::replace);
    return *this;
}

Wire_Line& Wire_Line::number(std::string_view member, std::int64_t value) {
    name(member);
    out_ += std::to_string(value);
    return *this;
}

Wire_Line& Wire_Line::id(std::string_view member, std::int64_t value) {
    return text(member, std::to_string(value));
}

Wire_Line& Wire_Line::flag(std::string_view member, bool value) {
    name(member);
    out_ += value ? "true" : "false";
    return *this;
}

void Wire_Line::end() {
    if (before_name_ == '{') out_ += '{';
    out_ += "}\n";
}

}  // namespace velk
