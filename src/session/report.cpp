#include "session/report.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"
#include "bridge/device_list.h"
#include "version.h"

namespace velk {

namespace {

constexpr const char* not_known = "not known";
constexpr std::string_view of_a_version =
    "0123456789.-+~abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// What stands behind these words, at the beginning of a line. The tool also prints where it lies.
std::string version_behind(std::string_view words, const std::string& printed) {
    const std::string lines = "\n" + printed;
    const std::size_t found = lines.find("\n" + std::string(words));
    if (found == std::string::npos) return not_known;
    const std::size_t begin = found + 1 + words.size();
    return lines.substr(begin, lines.find_first_not_of(of_a_version, begin) - begin);
}

std::string versions(const Report_Facts& facts) {
    return format("%s: %s\nToolkit: %s\nSystem: %s\nadb: %s (%s)\n", g_product_name, g_version,
                  facts.toolkit.c_str(), facts.system.c_str(),
                  version_behind("Android Debug Bridge version ", facts.adb_version).c_str(),
                  version_behind("Version ", facts.adb_version).c_str());
}

const char* words_for(const std::optional<std::string>& answer) {
    if (!answer) return "none yet";
    const std::size_t attached = attached_position(*answer);
    if (attached == std::string::npos) return "no list";
    if (!lists_a_device(*answer, attached)) return "no phone";
    switch (device_state(
        std::string_view(*answer).substr(attached + define_adb_device_attached.size()))) {
        case Device_State::usable:
            return "a usable phone";
        case Device_State::offline:
            return "a phone that is offline";
        case Device_State::unauthorized:
            return "a phone that has not allowed this computer";
        default:
            return "a phone in a state that is not known";
    }
}

/// The sentence about them names no phone and no folder.
std::string sentence_without_names(Trouble_Facts facts) {
    for (Usb_Phone& phone : facts.phones) phone.name.clear();
    facts.directory = "its folder";
    const std::string words = what_to_put_right(facts);
    return words.empty() ? "Nothing." : words;
}

std::string what_is_seen(const Trouble_Facts& facts) {
    std::string text =
        sentence_without_names(facts) + "\n" + "adb's last answer: " + words_for(facts.adb_answer) +
        "\n" + "The agent's package: " + (facts.agent_package_is_there ? "there" : "missing") +
        "\n" + format("Phones on the bus: %zu\n", facts.phones.size());
    for (const Usb_Phone& phone : facts.phones)
        text += format("- debugging interface: %s, may be used: %s\n",
                       phone.shows_debugging ? "yes" : "no", phone.may_be_used ? "yes" : "no");
    return text;
}

}  // namespace

std::string report_text(const Report_Facts& facts) {
    return format("Report of %s\n\n", g_product_name) + versions(facts) +
           "\nWhat stands between the program and a phone\n\n" + what_is_seen(facts.trouble) +
           "\nThe last lines of the trace, with *** for what is private\n\n" + facts.masked_trace;
}

}  // namespace velk
