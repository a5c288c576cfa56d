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

constexpr std::size_t longest_reason = 300;  // bytes

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
    const std::int64_t sent = number_of(line, "end");
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
    return {false, answered ? broken_off : no_answer};
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

std::string shown_reason(std::string words) {
    words = as_utf8(words);
    for (char& byte : words)
        if (static_cast<unsigned char>(byte) < ' ') byte = ' ';
    if (words.size() <= longest_reason) return words;
    std::size_t end = longest_reason;
    while (end > 0 && (static_cast<unsigned char>(words[end]) & 0xC0) == 0x80) --end;
    return words.substr(0, end) + "...";
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
