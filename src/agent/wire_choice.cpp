#include "agent/wire_choice.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

#include "agent/second_wire.h"
#include "base/trace.h"

namespace velk {

namespace {

constexpr std::chrono::milliseconds time_for_a_hello{1000};
constexpr std::int64_t oldest_wire_understood = 2;

std::mutex choice_mutex;
std::optional<Agent_Hello> choice;  // nothing: the first wire

void choose(std::optional<Agent_Hello> hello) {
    const std::lock_guard lock(choice_mutex);
    choice = std::move(hello);
}

Agent_Hello::Kind kind_in(const simdjson::dom::object& record) {
    return {text_of(record, "kind"), truth_of(record, "read"), truth_of(record, "write"),
            shown_reason(text_of(record, "message"))};
}

}  // namespace

void choose_wire() {
    Agent_Hello hello;
    std::int64_t wire = 0;
    const Wire_End end = ask_second_wire(
        R"({"op":"hello"})",
        [&](const simdjson::dom::object& record) {
            if (const std::int64_t version = number_of(record, "wire"); version > 0) {
                wire = version;
                hello.agent = text_of(record, "agent");
                hello.android = text_of(record, "android");
            } else {
                hello.kinds.push_back(kind_in(record));
            }
        },
        time_for_a_hello);
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

Agent_Hello agent_hello() {
    const std::lock_guard lock(choice_mutex);
    return choice.value_or(Agent_Hello{});
}

std::string missing_rights(const Agent_Hello& hello) {
    std::string kinds, why;
    for (const Agent_Hello::Kind& kind : hello.kinds) {
        if (kind.read && kind.write) continue;
        if (kind.name == "applications" && kind.read) continue;  // adb changes them, not the agent
        kinds += (kinds.empty() ? "" : ", ") + shown_reason(kind.name);
        if (why.empty()) why = kind.why_not;
    }
    if (kinds.empty()) return {};
    if (why.empty()) why = "Open Velk on the phone and allow there what is missing.";
    return "Velk may not do everything with " + kinds + ": " + why;
}

}  // namespace velk
