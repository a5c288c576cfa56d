#include "demo_phone/phone_options.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <limits>
#include <string_view>

namespace velk {

namespace {

constexpr std::size_t most_of_a_kind = 200000;
constexpr std::size_t most_on_first_wire = 60000;  // its ids have 16 bits

struct Option {
    std::string_view name;
    std::string_view value;  // what its value is called in the help; empty when it takes none
    std::string_view help;
    bool (*set)(Phone_Options& options, std::string_view value);
};

template <typename Number>
bool set_number(Number& number, std::string_view text, Number least, Number most) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return false;
    if (value < least || value > most) return false;
    number = value;
    return true;
}

bool set_port(int& port, std::string_view text) {
    return set_number(port, text, 0, 65535);
}

bool set_amount(std::size_t& amount, std::string_view text) {
    return set_number<std::size_t>(amount, text, 0, most_of_a_kind);
}

bool set_wires(Phone_Settings& settings, std::string_view word) {
    settings.first_wire = word != "second";
    settings.second_wire = word != "first";
    return word == "both" || word == "first" || word == "second";
}

using Options = Phone_Options;
using Value = std::string_view;

constexpr Option option_table[] = {
    {"--port", "PORT", "where adb finds the phone, 5585 at first; 0 takes a free odd port",
     [](Options& o, Value v) { return set_port(o.places.port, v); }},
    {"--announce", "PORT", "announce the phone to the adb server on PORT as an emulator",
     [](Options& o, Value v) { return set_port(o.places.announce_port, v); }},
    {"--storage", "DIR", "keep the phone's files in DIR; else in a folder removed at the end",
     [](Options& o, Value v) { return o.storage = v, !v.empty(); }},
    {"--control", "PATH", "take commands on the socket PATH (see --tell)",
     [](Options& o, Value v) { return o.places.control = v, !v.empty(); }},
    {"--log", "FILE", "write every service, file request and agent request to FILE",
     [](Options& o, Value v) { return o.log = v, !v.empty(); }},
    {"--play", "WORDS", "behave badly in the ways below; several are joined by commas",
     [](Options& o, Value v) { return play(o.behaviour, v); }},
    {"--packet", "BYTES", "most data in one message of the transport: 4096 to 1048576",
     [](Options& o, Value v) {
         return set_number<std::size_t>(o.settings.largest_packet, v, 4096, g_adb_largest_data);
     }},
    {"--later-services", "", "offer shell_v2, cmd and stat_v2, as later phones do",
     [](Options& o, Value) { return o.settings.later_services = true; }},
    {"--model", "NAME", "what the phone is called",
     [](Options& o, Value v) { return o.settings.model = v, !v.empty(); }},
    {"--contacts", "N", "number of contacts (240)",
     [](Options& o, Value v) { return set_amount(o.amounts.contacts, v); }},
    {"--messages", "N", "number of messages (1500)",
     [](Options& o, Value v) { return set_amount(o.amounts.messages, v); }},
    {"--music", "N", "number of music files (60)",
     [](Options& o, Value v) { return set_amount(o.amounts.music, v); }},
    {"--photos", "N", "number of photos (40)",
     [](Options& o, Value v) { return set_amount(o.amounts.photos, v); }},
    {"--videos", "N", "number of videos (8)",
     [](Options& o, Value v) { return set_amount(o.amounts.videos, v); }},
    {"--books", "N", "number of books (12)",
     [](Options& o, Value v) { return set_amount(o.amounts.books, v); }},
    {"--apps", "N", "number of applications (30)",
     [](Options& o, Value v) { return set_amount(o.amounts.apps, v); }},
    {"--long-names", "", "contacts of about 130 bytes each, so that 240 make a list of 30 KB",
     [](Options& o, Value) { return o.amounts.long_names = true; }},
    {"--messages-per-packet", "N", "messages in one packet of the list (20)",
     [](Options& o, Value v) {
         return set_number<std::size_t>(o.settings.messages_per_packet, v, 1,
                                        std::numeric_limits<int>::max());
     }},
    {"--odd-contacts", "", "contacts whose names have separators, quotes, line breaks and the like",
     [](Options& o, Value) { return o.amounts.odd_contacts = true; }},
    {"--wires", "WHICH", "what the agent speaks: both, or only the first or the second wire",
     [](Options& o, Value v) { return set_wires(o.settings, v); }},
    {"--first-id", "N", "number added to every id on the phone: 0 to 2^62",
     [](Options& o, Value v) {
         return set_number<std::int64_t>(o.settings.first_id, v, 0, std::int64_t{1} << 62);
     }},
    {"--refuse-writes", "", "the agent may change nothing, and says so on the second wire",
     [](Options& o, Value) { return o.settings.refuse_writes = true; }},
    {"--help", "", "print this and end", [](Options& o, Value) { return o.help = true; }},
    {"--version", "", "print the version and end",
     [](Options& o, Value) { return o.version = true; }},
};

const Option* find_option(std::string_view name) {
    for (const Option& option : option_table)
        if (option.name == name) return &option;
    return nullptr;
}

bool complain(std::string_view what, std::string_view word) {
    std::fprintf(stderr, "demo_phone: %.*s: %.*s (see --help)\n", static_cast<int>(word.size()),
                 word.data(), static_cast<int>(what.size()), what.data());
    return false;
}

bool amounts_fit(const Phone_Options& options) {
    const Demo_Amounts& amounts = options.amounts;
    const std::size_t most =
        std::max({amounts.contacts, amounts.messages, amounts.music, amounts.photos, amounts.videos,
                  amounts.books, amounts.apps});
    return !options.settings.first_wire || most <= most_on_first_wire ||
           complain("more than 60000 of a kind need --wires second", std::to_string(most));
}

/// "--tell PATH COMMAND..." takes all words that follow.
bool read_tell(Phone_Options& options, int count, char** words, int position) {
    if (position + 2 >= count) return complain("needs a socket and a command", "--tell");
    options.tell_path = words[position + 1];
    for (int i = position + 2; i < count; ++i)
        options.tell_line.append(i > position + 2 ? " " : "").append(words[i]);
    return true;
}

}  // namespace

std::optional<Phone_Options> read_options(int count, char** words) {
    Phone_Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view word = words[i];
        if (word == "--tell") {
            if (!read_tell(options, count, words, i)) return std::nullopt;
            return options;
        }
        const std::size_t equals = word.find('=');
        const Option* option = find_option(word.substr(0, equals));
        if (!option) return complain("unknown option", word), std::nullopt;
        std::string_view value;
        if (!option->value.empty()) {
            if (equals == std::string_view::npos && i + 1 == count)
                return complain("needs a value", word), std::nullopt;
            value = equals == std::string_view::npos ? words[++i] : word.substr(equals + 1);
        }
        if (!option->set(options, value))
            return complain("value not understood", word), std::nullopt;
    }
    if (!amounts_fit(options)) return std::nullopt;
    return options;
}

std::string phone_help() {
    std::string text =
        "demo_phone [OPTION...]\n"
        "demo_phone --tell PATH COMMAND...\n\n"
        "A phone made of software: a device for the real adb with contacts, messages, media,\n"
        "books and applications, and with the agent that answers for them. It prints\n"
        "\"port N\" when it is ready, and ends on SIGTERM or SIGINT.\n\n"
        "Reach it with: adb connect 127.0.0.1:N, or let it announce itself (--announce).\n\n"
        "Options:\n";
    for (const Option& option : option_table) {
        std::string left = "  ";
        left.append(option.name).append(" ").append(option.value);
        left.resize(std::max<std::size_t>(left.size() + 1, 27), ' ');
        text += left + std::string(option.help) + "\n";
    }
    text += "  --tell PATH COMMAND...   send a command to the phone whose --control is PATH\n\n";
    text += "Behaviours (--play, and the command play):\n" + std::string(play_help());
    text += "\nCommands (--tell):\n" + std::string(control_help());
    return text;
}

}  // namespace velk
