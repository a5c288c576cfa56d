#include "bridge/install_result.h"

#include <string_view>

#include "base/text.h"

namespace velk {

namespace {

struct Cause {
    std::string_view word;
    std::string_view sentence;
};

constexpr std::string_view refused_by_the_maker =
    "The phone takes no application over the cable: switch on \"Install via USB\" in its developer "
    "options, connect again, and answer the question on its screen.";
constexpr std::string_view another_signature =
    "An agent with another signature is on the phone: remove the application velk.phone.android "
    "there, then connect again.";
constexpr std::string_view no_room =
    "There is no room on the phone for the agent: free some storage there, then connect again.";
constexpr std::string_view refused_by_a_check =
    "The phone's owner or a store's check refused the agent: switch off \"Verify apps over USB\" "
    "in the phone's developer options, or accept it on the phone, then connect again.";
constexpr std::string_view damaged =
    "The agent for real phones is not built, or its package is damaged: build it with \"cmake "
    "--build "
    "--preset release --target agent\", or install Velk again, then connect again.";

/// The first that stands in what was printed counts: the same failure may come with words of a more
/// general one.
constexpr Cause causes[] = {
    {"INSTALL_FAILED_USER_RESTRICTED", refused_by_the_maker},
    {"INSTALL_FAILED_UPDATE_INCOMPATIBLE", another_signature},
    {"INSTALL_PARSE_FAILED_INCONSISTENT_CERTIFICATES", another_signature},
    {"signatures do not match", another_signature},
    {"INSTALL_FAILED_INSUFFICIENT_STORAGE", no_room},
    {"not enough space", no_room},
    {"No space left on device", no_room},
    {"INSTALL_FAILED_DEPRECATED_SDK_VERSION",
     "This phone's Android refuses the agent because it is made for older versions: a newer Velk "
     "is "
     "needed."},
    {"INSTALL_FAILED_OLDER_SDK",
     "This phone's Android is too old for the agent, which needs Android 4.4 or later."},
    {"INSTALL_FAILED_VERIFICATION_FAILURE", refused_by_a_check},
    {"INSTALL_FAILED_ABORTED", refused_by_a_check},
    {"User rejected permissions", refused_by_a_check},
    {"INSTALL_PARSE_FAILED_NOT_APK", damaged},
    {"INSTALL_FAILED_INVALID_APK", damaged},
    {"NO_CERTIFICATES", damaged},
    {"INSTALL_FAILED_VERSION_DOWNGRADE",
     "A newer agent is on the phone: remove the application velk.phone.android there, then "
     "connect again."},
};

bool says_success(std::string_view printed) {
    return printed.starts_with("Success") || printed.find("\nSuccess") != std::string_view::npos;
}

/// What stands in "Failure [...]", up to the end of its line.
std::string reason_in_brackets(std::string_view printed) {
    constexpr std::string_view beginning = "Failure [";
    constexpr std::size_t longest = 200;  // a sentence, whatever the phone prints
    const std::size_t found = printed.find(beginning);
    if (found == std::string_view::npos) return {};
    std::string_view reason = printed.substr(found + beginning.size());
    reason = reason.substr(0, reason.find_first_of("\r\n"));
    reason = reason.substr(0, reason.rfind(']'));
    return as_utf8(reason.substr(0, longest));
}

}  // namespace

std::string why_install_failed(const std::string& printed) {
    if (says_success(printed)) return {};
    for (const Cause& cause : causes)
        if (printed.find(cause.word) != std::string::npos) return std::string(cause.sentence);
    const std::string reason = reason_in_brackets(printed);
    return reason.empty() ? reason : "The phone refused the agent: " + reason + ".";
}

}  // namespace velk
