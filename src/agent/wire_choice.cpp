#include "agent/wire_choice.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <optional>
#include <utility>

#include "agent/second_wire.h"
#include "base/interruptor.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::chrono::milliseconds time_for_a_hello{1000};
constexpr std::chrono::milliseconds pause_between_hellos{100};
constexpr std::int64_t oldest_wire_understood = 2;

std::mutex choice_mutex;
std::optional<Agent_Hello> choice;  // nothing: the first wire
int choices = 0;

void choose(std::optional<Agent_Hello> hello) {
    const std::lock_guard lock(choice_mutex);
    choice = std::move(hello);
    ++choices;
}

constexpr std::array known_kinds = {"contacts", "messages", "applications", "music",
                                    "photos",   "videos",   "books"};
const std::string no_reason =
    "Open Velk on the phone, allow there what is missing, then press Refresh.";
constexpr std::size_t most_reasons_shown = 3;

/// Keeps what is said of a kind, of each the first word and of no kind that Velk does not know.
void take_kind(const simdjson::dom::object& record, std::vector<Agent_Hello::Kind>& kinds) {
    const std::string name = text_of(record, "kind");
    const bool known = std::find(known_kinds.begin(), known_kinds.end(), name) != known_kinds.end();
    const bool taken = std::any_of(kinds.begin(), kinds.end(),
                                   [&](const auto& kind) { return kind.name == name; });
    if (known && !taken)
        kinds.push_back({name, truth_of(record, "read"), truth_of(record, "write"),
                         shown_reason(text_of(record, "message"))});
}

/// One hello, of which the answer is waited for no longer than `time`.
Wire_End say_hello(Agent_Hello& hello, std::int64_t& wire, std::chrono::milliseconds time) {
    return ask_second_wire(R"({"op":"hello"})",
                           [&](const simdjson::dom::object& record) {
                               if (const std::int64_t version = number_of(record, "wire");
                                   version > 0) {
                                   wire = version;
                               } else {
                                   take_kind(record, hello.kinds);
                               }
                           },
                           time);
}

}  // namespace

void choose_wire() {
    using Clock = std::chrono::steady_clock;
    const auto latest = Clock::now() + time_for_a_hello;
    Agent_Hello hello;
    std::int64_t wire = 0;
    Wire_End end;
    do {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(latest - Clock::now());
        end = say_hello(hello, wire, left);
        // While the agent is still starting, adb accepts the connection and closes it again.
    } while (end.has_no_line && Clock::now() + pause_between_hellos < latest &&
             Interruptor::current().sleep_for(pause_between_hellos));
    const bool second = end.whole && wire >= oldest_wire_understood;
    trace("Wire: %d\n", second ? 2 : 1);
    choose(second ? std::optional(std::move(hello)) : std::nullopt);
}

void use_first_wire() {
    choose(std::nullopt);
}

bool second_wire_in_use() {
    const std::lock_guard lock(choice_mutex);
    return choice.has_value();
}

int wire_choices() {
    const std::lock_guard lock(choice_mutex);
    return choices;
}

Agent_Hello agent_hello() {
    const std::lock_guard lock(choice_mutex);
    return choice.value_or(Agent_Hello{});
}

std::string missing_rights(const Agent_Hello& hello) {
    std::string kinds;
    std::vector<std::string> reasons;
    for (const Agent_Hello::Kind& kind : hello.kinds) {
        if (kind.read && kind.write) continue;
        if (kind.name == "applications" && kind.read) continue;  // adb changes them, not the agent
        kinds += (kinds.empty() ? "" : ", ") + kind.name;
        const std::string& reason = kind.why_not.empty() ? no_reason : kind.why_not;
        if (std::find(reasons.begin(), reasons.end(), reason) == reasons.end())
            reasons.push_back(reason);
    }
    if (kinds.empty()) return {};
    std::string words = "Velk may not do everything with " + kinds + ":";
    for (std::size_t i = 0; i < std::min(reasons.size(), most_reasons_shown); ++i)
        words += " " + reasons[i];
    return words;
}

}  // namespace velk
