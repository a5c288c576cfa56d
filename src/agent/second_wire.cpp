#include "agent/second_wire.h"

#include "agent/channel.h"
#include "agent/line_reader.h"
#include "base/text.h"
#include "base/trace.h"

namespace velk {

namespace {

using simdjson::dom::object;

constexpr const char* no_answer = "The agent on the phone does not answer.";
constexpr const char* broken_off = "The connection to the phone broke off before the end.";
constexpr const char* damaged = "The phone's answer is damaged.";

constexpr std::size_t longest_reason = 300;  // bytes

/// Ends a line, or changes the direction of the text around it.
bool is_control(char32_t character) {
    return character < U' ' || (character >= 0x7F && character < 0xA0) ||
           (character >= 0x200E && character <= 0x200F) ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

/// Parses a line; a line with ill-formed UTF-8 in it is mended first.
bool parse(simdjson::dom::parser& parser, std::string_view line, object& record) {
    if (parser.parse(line.data(), line.size()).get(record) == simdjson::SUCCESS) return true;
    return !is_utf8(line) && parser.parse(as_utf8(line)).get(record) == simdjson::SUCCESS;
}

bool has(const object& record, const char* member) {
    return record[member].error() == simdjson::SUCCESS;
}

/// What the last line says about the `came` records before it; nothing for any other line.
std::optional<Wire_End> end_in(const object& line, std::int64_t came) {
    if (has(line, "error")) {
        std::string words = shown_reason(text_of(line, "message"));
        if (words.empty()) words = "The phone refused: " + shown_reason(text_of(line, "error"));
        return Wire_End{false, std::move(words)};
    }
    if (!has(line, "end")) return {};
    std::int64_t sent = 0;
    if (line["end"].get(sent) != simdjson::SUCCESS || sent < 0) return Wire_End{false, damaged};
    if (sent == came) return Wire_End{true, ""};
    return Wire_End{false, format("The phone sent %lld records, of which %lld could be read.",
                                  static_cast<long long>(sent), static_cast<long long>(came))};
}

Wire_End read_reply(Line_Reader& lines, const On_Record& on_record) {
    simdjson::dom::parser parser;
    std::int64_t came = 0;
    bool answered = false;
    while (const auto line = lines.next()) {
        answered = true;
        object record;
        if (!parse(parser, *line, record)) continue;  // missed when the end is counted
        if (auto end = end_in(record, came)) return *std::move(end);
        ++came;
        on_record(record);
    }
    if (lines.found_too_long()) return {false, damaged};
    if (answered) return {false, broken_off};
    return {false, no_answer, true};
}

}  // namespace

std::string text_of(const object& record, const char* member) {
    std::string_view text;
    return record[member].get(text) == simdjson::SUCCESS ? std::string(text) : std::string();
}

std::int64_t number_of(const object& record, const char* member) {
    std::int64_t number = 0;
    return record[member].get(number) == simdjson::SUCCESS ? number : 0;
}

bool truth_of(const object& record, const char* member) {
    bool truth = false;
    return record[member].get(truth) == simdjson::SUCCESS && truth;
}

std::string shown_reason(std::string_view words) {
    const std::string text = as_utf8(words);
    std::string shown;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view before = rest;
        const bool is_shown = !is_control(take_character(rest));
        shown += is_shown ? before.substr(0, before.size() - rest.size()) : " ";
        if (shown.size() > longest_reason) return shown + "...";
    }
    return shown;
}

Wire_End ask_second_wire(std::string_view request, const On_Record& on_record,
                         std::optional<std::chrono::milliseconds> time) {
    trace("\n\nsend:'%s'\n", std::string(request));
    std::optional<Line_Reader::Clock::time_point> latest;
    if (time) latest = Line_Reader::Clock::now() + *time;
    Channel agent(second_wire_port);
    if (!agent.connected()) return {false, no_answer};
    agent.send_all(std::string(request) + "\n");  // an agent that takes less may say why
    Line_Reader lines(agent, latest);
    Wire_End end = read_reply(lines, on_record);
    trace("whole: %d\n", end.whole ? 1 : 0);
    return end;
}

}  // namespace velk
