// How the phone behaves: well, or badly in one of the ways that a person's phone can.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace velk {

struct Phone_Behaviour {
    enum class Handshake { normal, unauthorized, offline };
    enum class Reply { normal, silent, close_early, cut, split, damaged };

    Handshake handshake = Handshake::normal;
    Reply reply = Reply::normal;
    std::size_t reply_bytes = 0;         // of a cut reply, or of each piece of a split one
    std::chrono::milliseconds pause{2};  // between the pieces of a split reply
    std::string refused_install;  // the reason for which no package can be installed; empty: none
    bool no_grants = false;
    bool storage_full = false;
};

/// Changes the behaviour by one word such as "offline", "cut:100" or "normal"; several may be
/// joined by commas. False, with nothing changed, when a word is not known.
bool play(Phone_Behaviour& behaviour, std::string_view words);

/// The words in the form in which play() takes them.
std::string describe_behaviour(const Phone_Behaviour& behaviour);

/// The lines of --help about them.
std::string_view play_help();

}  // namespace velk
