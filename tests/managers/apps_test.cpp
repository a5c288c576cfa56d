#include "bridge/adb_wrappers.h"
#include "managers/app_tablesource.h"
#include "managers/manager_fixture.h"
#include "support/fake_adb.h"

namespace velk {
namespace {

using testing::ElementsAre;
using Lines = std::vector<std::string>;

class Apps : public Manager_Test {
  protected:
    Apps() {
        finish();
        recorder.watch(apps.m_LB_message);
        recorder.watch(apps.m_table);
        g_adb_tool_file = adb.tool();
        g_device_serial_number = "R58 M";
        agent.reply_to(116, two_apps());
    }
    ~Apps() override {
        window.test_desktop.end_work();
        App_TableSource::g_can_click_load = 1;
    }

    static std::string two_apps() {
        std::string bytes(7, '\0');
        for (const char* field :
             {"1536", "x", "Moss", "a.moss", "1.0", "y", "10", "", "Fern", "a.fern", "2.0", ""})
            bytes += Agent_Double::number(std::string(field).size()) + field;
        return bytes;
    }
    /// What was shown from the last box on, up to the begin of the reload.
    Lines shown_lines() {
        const Lines& all = recorder.lines();
        return {all.begin(), std::find(all.begin(), all.end(), "m_table_App reloaded: 0 rows")};
    }
    const std::string& quiet() const { return apps.quiet.m_LB_Quiet.text(); }

    Fake_Adb adb;
    App_TableSource apps{window};
};

TEST_F(Apps, tell_their_load_counting_from_nought) {
    g_int_count_apps = 3;
    recorder.clear();
    apps.OnBT_Refresh();
    finish();
    EXPECT_THAT(recorder.lines_of("m_LB_message"),
                ElementsAre("m_LB_message: Loading No.0 'Moss' application......",
                            "m_LB_message: Loading No.1 'Fern' application......",
                            "m_LB_message: There are 2 application(s) on your Mobile Phone."));
    EXPECT_THAT(recorder.lines_of("title"), ElementsAre("title 2: Apps(2)"));
    const App_TableSource_Column& row = apps.table_rows[0];
    EXPECT_THAT((Lines{row.col_no, row.col_app_name, row.col_app_name_package, row.col_app_size,
                       row.col_app_ver}),
                ElementsAre("1", "Moss", "a.moss", "1.50 KB", "1.0"));
    EXPECT_NE(quiet(), "");
    g_int_count_apps = 0;
}

TEST_F(Apps, install_whatever_was_chosen_and_say_quietly_why_it_failed) {
    adb.answer("install", "Success\n");
    adb.answer("install -r ", "Performing\nadb: failed to stat : none\n\n");
    for (const std::string& path : {std::string("/a b.apk"), std::string()}) {
        recorder.clear();
        window.test_desktop.choose_file(path);
        apps.section.commands[0].run();
        finish();
        EXPECT_THAT(shown_lines(),
                    ElementsAre("panel: ", "m_LB_message: Installing file '" + path + "'.",
                                "m_LB_message: Installed Successfully!",
                                testing::StartsWith("title 2: Apps("), "captions white"));
        EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "install", "-r", path}));
        EXPECT_EQ(apps.table_rows.size(), 2U);
        EXPECT_EQ(quiet(), path.empty() ? "adb: failed to stat : none" : "");
    }
    EXPECT_EQ(window.test_desktop.file_panels()[0].message, "select a file(*.apk).");
    const std::size_t loads = agent.codes().size();
    apps.section.take_files({"/1.apk", "/2.apk"});
    finish();
    EXPECT_EQ(adb.calls().back().back(), "/2.apk");
    EXPECT_EQ(agent.codes().size(), loads + 1);
}

TEST_F(Apps, uninstall_the_selected_one_with_the_tools_verdict) {
    apps.OnBT_App_Uninstall();  // nothing is selected
    for (const char* printed : {"Failure", "Failure [DELETE_FAILED]\n", "Success\n"}) {
        apps.OnBT_Refresh();
        finish();
        adb.answer("uninstall", printed);
        apps.m_table.select({1}, 1);
        recorder.clear();
        window.test_desktop.answer_alert(yes);
        apps.section.commands[1].run();
        finish();
        const bool bare = printed == std::string("Failure");
        EXPECT_THAT(
            shown_lines(),
            ElementsAre("alert: Are you sure you want to delete the selected \"Fern\" App?",
                        "m_LB_message: Uninstalling application 'Fern'.",
                        std::string("m_LB_message: ") + (bare ? "[Failure!]" : "[Success!]") +
                            " Uninstall APK:'a.fern'.",
                        "title 2: Apps(2)", "captions white"));
        EXPECT_EQ(quiet().empty(), printed[0] == 'S');
    }
}

TEST_F(Apps, ask_for_patience_when_an_install_ends_during_a_load) {
    agent.be_silent();
    apps.OnBT_Refresh();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return agent.requests().size() == 2; }));
    g_table_app_need_refresh = 0;
    apps.OnBT_Refresh();  // says nothing
    recorder.clear();
    apps.Install_APK_To_Phone("/a.apk");
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return g_table_app_need_refresh == 1; }));
    EXPECT_EQ(recorder.lines().back(),
              "message: Please wait for a few minutes to load your applications.");
    EXPECT_EQ(quiet(), list_is_old);
}

}  // namespace
}  // namespace velk
