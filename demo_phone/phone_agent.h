// The agent application on the phone: whether it runs, and what it answers.
#pragma once

#include <string>
#include <string_view>

#include "demo_phone/agent_request.h"

namespace velk {

struct Demo_Phone;

inline constexpr std::string_view g_agent_package = "velk.phone.android";
inline constexpr std::string_view g_agent_component = "velk.phone.android/.PhoneConnActivity";
inline constexpr std::string_view g_agent_broadcast = "openUSBConnect";
inline constexpr std::string_view g_agent_version = "1.0.3";
inline constexpr std::string_view g_android_version = "4.4.2";
inline constexpr int g_android_api_level = 19;

/// The services that lead to the agent, by a port of the phone or by an abstract socket.
inline constexpr std::string_view g_first_wire_services[] = {
    "tcp:12186", "localabstract:velk.phone.android.wire1"};
inline constexpr std::string_view g_second_wire_services[] = {
    "tcp:12176", "localabstract:velk.phone.android.wire2"};

/// The steps to a listening agent come one after the other; an install starts over.
class Agent_Life {
  public:
    void install() { state_ = State::installed; }
    void uninstall() { state_ = State::absent; }
    /// False when the agent is not installed.
    bool start();
    /// The broadcast; it wakes only a started agent.
    void wake();

    bool installed() const { return state_ != State::absent; }
    bool listening() const { return state_ == State::listening; }
    std::string_view describe() const;

  private:
    enum class State { absent, installed, started, listening };
    State state_ = State::absent;
};

struct Agent_Answer {
    std::string bytes;         // empty: no answer
    bool closes_after = true;  // false where the reader is the one who ends the connection
};

/// Carries out one whole request of the first wire and answers it. An edit that finds nothing to
/// change is not answered, so that the computer sees it fail; the delete of a message that is gone
/// is, and one whose bytes fit several messages is not.
Agent_Answer answer_request(Demo_Phone& phone, std::string_view request);

}  // namespace velk
