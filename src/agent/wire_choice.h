// Which of the two wires the agent in use is spoken to on.
#pragma once

#include <string>
#include <vector>

namespace velk {

/// What an agent that speaks the second wire said of itself. All of it comes from the phone.
struct Agent_Hello {
    struct Kind {
        std::string name;  // "contacts", "messages", ...
        bool read = false;
        bool write = false;
        std::string why_not;  // a sentence, when one of the two is not possible now
    };
    std::vector<Kind> kinds;  // those that Velk knows, each once
};

/// Says hello on the second wire, again while nobody listens yet. An agent that answers within a
/// second is spoken to there from now on; otherwise on the first. Worker.
void choose_wire();

/// Chooses the first wire without asking. Any thread.
void use_first_wire();

/// Any thread.
bool second_wire_in_use();

/// How often a wire has been chosen, which is once for each connection. A command that was begun
/// before the last choice has ids of another wire, perhaps. Any thread.
int wire_choices();

/// What was answered to the last hello; empty while the first wire is in use. Any thread.
Agent_Hello agent_hello();

/// With what the agent may not do everything now, and why, with the way out; empty when it may.
std::string missing_rights(const Agent_Hello& hello);

}  // namespace velk
