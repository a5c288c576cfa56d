#include "session/trouble_shooter.h"

#include "session/session_fixture.h"

namespace velk {
namespace {

using testing::HasSubstr;

const std::string nothing = "List of devices attached \n\n";
const std::string other_version =
    "adb server version (32) doesn't match this client (41); killing...\n";

std::string listing(const char* state) {
    return std::string("List of devices attached \nR58M\t") + state + "\n\n";
}

TEST(Trouble_Shooter, names_the_first_thing_that_has_to_be_put_right) {
    const Usb_Phone closed{.name = "Moss", .shows_debugging = true};
    const Usb_Phone mute{.name = "Fern", .may_be_used = true};
    const Usb_Phone ready{.name = "Moss", .may_be_used = true, .shows_debugging = true};
    const Usb_Phone nameless{.name = "", .may_be_used = true};
    const std::pair<Trouble_Facts, const char*> cases[] = {
        {{}, "no phone on the USB bus"},
        {{.adb_answer = "", .phones = {ready}}, "sudo apt install adb"},
        {{.adb_answer = other_version}, "port 5037"},
        {{.adb_answer = other_version + listing("offline")}, "port 5037"},
        {{.adb_answer = listing("unauthorized"),
          .agent_package_is_there = false,
          .agent_package = "agent.apk",
          .directory = "/opt/velk"},
         "put agent.apk into /opt/velk."},
        {{.adb_answer = nothing}, "no phone on the USB bus"},
        {{.adb_answer = listing("unauthorized")}, "(unauthorized)"},
        {{.adb_answer = listing("offline"), .phones = {mute}}, "offline"},
        {{.adb_answer = listing("no permissions (udev)")}, "A phone is plugged in, but your"},
        {{.adb_answer = listing("unauthorized"), .bus_has_changed = true}, "no phone"},
        {{.adb_answer = listing("offline"), .bus_has_changed = true, .phones = {ready}},
         "Moss is plugged in and ready"},
        {{.adb_answer = nothing, .phones = {mute, closed}}, "70-velk.rules"},
        {{.adb_answer = nothing, .phones = {mute}}, "Fern is plugged in, but shows no debugging"},
        {{.adb_answer = nothing, .phones = {nameless}}, "A phone is plugged in, but shows no"},
        {{.phones = {closed, ready, mute}}, "Moss is plugged in and ready"},
    };
    for (const auto& [facts, words] : cases)
        EXPECT_THAT(what_to_put_right(facts), HasSubstr(words));
    EXPECT_EQ(what_to_put_right({.connected = true, .adb_answer = listing("device")}), "");
}

TEST_F(Session, says_on_the_view_of_a_trouble_what_stands_in_the_way_each_time_it_is_shown) {
    const auto& view =
        dynamic_cast<Connection_View&>(*document.m_views[DEFINE_VIEW_SettingPhoneUSB]);
    adb.answer("devices", nothing.c_str());
    refresh();
    EXPECT_THAT(view.m_LB_Trouble.text(),
                HasSubstr("put velk.phone.android.PhoneConnActivity.apk into "));
    std::ofstream(adb.directory() + "/" + g_apk_install_file) << "package";
    refresh();
    EXPECT_THAT(view.m_LB_Trouble.text(), HasSubstr("no phone on the USB bus"));
    adb.answer("devices", (other_version + nothing).c_str());
    refresh();
    EXPECT_THAT(view.m_LB_Trouble.text(), HasSubstr("port 5037"));
    // Troubles that leave the start view where it is.
    for (const auto& [answer, words] : {std::pair(std::string(), "sudo apt install adb"),
                                        std::pair(listing("offline"), "offline"),
                                        std::pair(listing("no permissions"), "70-velk.rules")}) {
        adb.answer("devices", answer.c_str());
        refresh();
        EXPECT_THAT(g_View_Start->m_LB_Trouble.text(), HasSubstr(words));
    }
}

}  // namespace
}  // namespace velk
