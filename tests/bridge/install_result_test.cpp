#include "bridge/install_result.h"

#include <gmock/gmock.h>

namespace velk {
namespace {

TEST(Install_Result, names_the_cause_and_nothing_after_a_success) {
    const std::string failed = "adb: failed to install /x.apk: Failure [INSTALL_FAILED_";
    const std::pair<std::string, std::string> results[] = {
        {"Performing Push Install\n\tpkg: /data/x\r\nSuccess\r\n", ""},
        {"error: device 'S1' not found\n", ""},
        {failed + "USER_RESTRICTED: Install canceled by user]\n", "\"Install via USB\""},
        {failed + "UPDATE_INCOMPATIBLE: Package a.b]\n", "another signature"},
        {"Failure [-104: signatures do not match]\n", "another signature"},
        {failed + "INSUFFICIENT_STORAGE]\n", "no room"},
        {"adb: error: remote write failed: No space left on device\n", "no room"},
        {failed + "DEPRECATED_SDK_VERSION: App package must target]\n", "a newer Velk is needed"},
        {failed + "ABORTED: User rejected permissions]\n", "\"Verify apps over USB\""},
        {"Failure [INSTALL_PARSE_FAILED_NOT_APK]\n", "is not built, or its package is damaged"},
        {"Failure [INSTALL_PARSE_FAILED_NO_CERTIFICATES: base.apk]",
         "is not built, or its package is damaged"},
        {failed + "VERSION_DOWNGRADE]\n", "A newer agent"},
        {"\tpkg: /data/x\nFailure [X: a[1] \xFF]\r\nend]\n",
         "The phone refused the agent: X: a[1] \xEF\xBF\xBD."},
        {"Failure [X", "The phone refused the agent: X."},
        {"Failure [" + std::string(9999, 'X') + "]", ": " + std::string(200, 'X') + "."},
    };
    for (const auto& [printed, words] : results) {
        const std::string sentence = why_install_failed(printed);
        EXPECT_THAT(sentence, testing::HasSubstr(words)) << printed;
        EXPECT_EQ(sentence.empty(), words.empty()) << printed;
    }
}

}  // namespace
}  // namespace velk
