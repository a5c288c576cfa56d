#include "session/report.h"

#include "base/file.h"
#include "session/session_fixture.h"
#include "version.h"

namespace velk {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Report, tells_what_stands_in_the_way_and_whose_phone_it_is_not) {
    const std::string printed =
        "Android Debug Bridge version 1.0.41\nVersion 28.0.2-debian\nInstalled as /home/zoe/adb\n";
    Report_Facts facts{"Qt 6", "Debian 12", printed, {}, "a line\n"};
    facts.trouble.adb_answer = "List of devices attached \nR58M\toffline\n\n";
    facts.trouble.bus_has_changed = true;
    facts.trouble.phones = {{.name = "Zoë's phone"}};
    for (const char* words :
         {g_version, "Qt 6\n", "Debian 12\n", "adb: 1.0.41 (28.0.2-debian)\n",
          "A phone is plugged in, but shows no debugging interface", "a phone that is offline",
          "Phones on the bus: 1\n- debugging interface: no, may be used: no\n", "a line\n"})
        EXPECT_THAT(report_text(facts), HasSubstr(words));

    facts.trouble.agent_package_is_there = false;
    facts.trouble.agent_package = "agent.apk";
    facts.trouble.directory = "/home/zoe";
    EXPECT_THAT(report_text(facts), HasSubstr("put agent.apk into its folder."));
    for (const char* words : {"zoe", "Zoë", "R58M"})
        EXPECT_THAT(report_text(facts), Not(HasSubstr(words)));
    EXPECT_THAT(report_text({}), HasSubstr("adb: not known (not known)\n"));
}

TEST_F(Session, saves_a_report_and_says_why_it_could_not) {
    adb.answer("version", "Android Debug Bridge version 1.0.41\n");
    desktop.choose_file(adb.directory() + "/report");
    document.save_report("Qt 6", "Debian 12");
    desktop.finish_work();
    EXPECT_THAT(document.m_LB_ps.text(), HasSubstr("Successed to save"));
    EXPECT_THAT(read_whole_file(adb.directory() + "/report.txt").value_or(""),
                HasSubstr("adb: 1.0.41 (not known)\n"));

    desktop.choose_file(adb.directory() + "/none/report");
    desktop.answer_alert(0);
    document.save_report("Qt 6", "Debian 12");
    desktop.finish_work();
    EXPECT_THAT(desktop.alerts().back().text, HasSubstr("No such file or directory"));

    desktop.choose_file("");
    document.save_report("Qt 6", "Debian 12");
    desktop.finish_work();
}

}  // namespace
}  // namespace velk
