#include "demo_phone/phone_behaviour.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace velk {

namespace {

using Handshake = Phone_Behaviour::Handshake;
using Reply = Phone_Behaviour::Reply;

struct Reply_Word {
    std::string_view word;
    Reply reply;
    bool takes_bytes;
};

/// What a maker's setting says that keeps the computer from installing.
constexpr std::string_view usual_refusal = "INSTALL_FAILED_USER_RESTRICTED";

constexpr Reply_Word reply_words[] = {
    {"silent", Reply::silent, false},   {"close-early", Reply::close_early, false},
    {"cut", Reply::cut, true},          {"split", Reply::split, true},
    {"damaged", Reply::damaged, false},
};

/// The text before the first `mark`; what follows it stays in `rest`.
std::string_view cut_at(std::string_view& rest, char mark) {
    const std::size_t end = rest.find(mark);
    const std::string_view head = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return head;
}

std::optional<unsigned> number(std::string_view text) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool play_reply(Phone_Behaviour& behaviour, std::string_view word) {
    const std::string_view name = cut_at(word, ':');
    for (const Reply_Word& known : reply_words) {
        if (known.word != name) continue;
        behaviour.reply = known.reply;
        if (!known.takes_bytes) return word.empty();
        const auto bytes = number(cut_at(word, ':'));
        const auto pause = word.empty() ? std::optional<unsigned>(2) : number(word);
        if (!bytes || !pause || (known.reply == Reply::split && *bytes == 0)) return false;
        behaviour.reply_bytes = *bytes;
        behaviour.pause = std::chrono::milliseconds(*pause);
        return true;
    }
    return false;
}

bool may_stand_in_a_reason(char character) {
    return character == '_' || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

bool play_refusal(Phone_Behaviour& behaviour, std::string_view word) {
    if (cut_at(word, ':') != "refuse-install") return false;
    behaviour.refused_install = word.empty() ? usual_refusal : word;
    return std::all_of(word.begin(), word.end(), may_stand_in_a_reason);
}

bool play_word(Phone_Behaviour& behaviour, std::string_view word) {
    if (word == "normal")
        behaviour = {};
    else if (word == "unauthorized")
        behaviour.handshake = Handshake::unauthorized;
    else if (word == "offline")
        behaviour.handshake = Handshake::offline;
    else if (word == "no-grants")
        behaviour.no_grants = true;
    else if (word == "storage-full")
        behaviour.storage_full = true;
    else
        return play_refusal(behaviour, word) || play_reply(behaviour, word);
    return true;
}

std::string describe_reply(const Phone_Behaviour& behaviour) {
    for (const Reply_Word& known : reply_words) {
        if (known.reply != behaviour.reply) continue;
        std::string text(known.word);
        if (known.takes_bytes) text.append(":").append(std::to_string(behaviour.reply_bytes));
        if (known.reply == Reply::split)
            text.append(":").append(std::to_string(behaviour.pause.count()));
        return text + ",";
    }
    return "";
}

std::string describe_refusal(const std::string& reason) {
    if (reason.empty()) return "";
    return "refuse-install" + (reason == usual_refusal ? "" : ":" + reason) + ",";
}

}  // namespace

bool play(Phone_Behaviour& behaviour, std::string_view words) {
    Phone_Behaviour changed = behaviour;
    do {
        if (!play_word(changed, cut_at(words, ','))) return false;
    } while (!words.empty());
    behaviour = changed;
    return true;
}

std::string describe_behaviour(const Phone_Behaviour& behaviour) {
    std::string text;
    if (behaviour.handshake == Handshake::unauthorized) text += "unauthorized,";
    if (behaviour.handshake == Handshake::offline) text += "offline,";
    text += describe_reply(behaviour);
    text += describe_refusal(behaviour.refused_install);
    if (behaviour.no_grants) text += "no-grants,";
    if (behaviour.storage_full) text += "storage-full,";
    if (text.empty()) return "normal";
    text.pop_back();
    return text;
}

std::string_view play_help() {
    return "  normal          behave well again\n"
           "  unauthorized    the computer is never allowed\n"
           "  offline         the handshake is never finished\n"
           "  silent          the agent takes a request and never answers\n"
           "  close-early     the agent takes a request and closes the connection\n"
           "  cut:N           every reply ends after N bytes\n"
           "  split:N[:MS]    every reply goes out in pieces of N bytes, MS (2) milliseconds "
           "apart\n"
           "  damaged         some bytes of every reply are wrong\n"
           "  refuse-install[:REASON]\n"
           "                  no package can be installed, for this reason "
           "(INSTALL_FAILED_USER_RESTRICTED)\n"
           "  no-grants       installing cannot grant permissions, as before Android 6\n"
           "  storage-full    no file can be written and no package installed\n";
}

}  // namespace velk
