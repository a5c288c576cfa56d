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
    std::string agent;    // its version
    std::string android;  // the phone's
    std::vector<Kind> kinds;
};

/// Says hello on the second wire. An agent that answers within a second is spoken to there from now
/// on; otherwise on the first. Worker.
void choose_wire();

/// As before the first choice. For tests and measurements: the program changes the wire of a phone
/// in use by a new choice alone. Any thread.
void use_first_wire();

/// Any thread.
bool second_wire_in_use();

/// What was answered to the last hello; empty while the first wire is in use. Any thread.
Agent_Hello agent_hello();

/// What the agent may not do now and why, in one sentence with the way out; empty when it may do
/// everything.
std::string missing_rights(const Agent_Hello& hello);

}  // namespace velk
