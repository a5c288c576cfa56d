#include "managers/app_tablesource.h"
#include "managers/tool_fixture.h"

namespace velk {
namespace {

using testing::ElementsAre;

class Apps : public Tool_Test {
  protected:
    enum Button { install, uninstall, refresh };

    Apps() {
        finish();
        recorder.watch(apps.m_LB_message);
        recorder.watch(apps.m_table);
        std::string bytes(7, '\0');
        for (const char* text :
             {"1536", "x", "Moss", "a.moss", "1.0", "y", "10", "", "Fern", "a.fern", "2.0", ""})
            bytes += Agent_Double::field(text);
        agent.reply_to(116, bytes);
    }
    ~Apps() override {
        window.test_desktop.end_work();
        App_TableSource::g_can_click_load = 1;
    }
    const std::string& quiet() const { return apps.quiet.m_LB_Quiet.text(); }

    App_TableSource apps{window};
};

TEST_F(Apps, tell_their_load_counting_from_nought) {
    press(apps, refresh);
    EXPECT_THAT(recorder.lines_of("m_LB_message"),
                ElementsAre("m_LB_message: Loading No.0 'Moss' application......",
                            "m_LB_message: Loading No.1 'Fern' application......",
                            "m_LB_message: There are 2 application(s) on your Mobile Phone."));
    EXPECT_THAT(recorder.lines_of("title"), ElementsAre("title 2: Apps(2)"));
    const App_TableSource_Column& row = apps.table_rows[0];
    EXPECT_EQ(row.col_no + row.col_app_name + row.col_app_name_package + row.col_app_size +
                  row.col_app_ver,
              "1Mossa.moss1.50 KB1.0");
}

TEST_F(Apps, install_whatever_was_chosen_and_say_quietly_why_it_failed) {
    adb.answer("install", "Performing failed\nSuccess\n");
    adb.answer("install -r ", "Performing\nadb: failed to stat : none\n\n");
    for (const std::string& path : {std::string("/a b.apk"), std::string()}) {
        window.test_desktop.choose_file(path);
        press(apps, install);
        EXPECT_THAT(lines_before_the_load(),
                    ElementsAre("panel: ", "m_LB_message: Installing file '" + path + "'.",
                                "m_LB_message: Installed Successfully!",
                                testing::StartsWith("title 2: Apps("), "captions white"));
        EXPECT_EQ(adb.calls().back(), (Lines{"-s", "R58 M", "install", "-r", path}));
        EXPECT_EQ(apps.table_rows.size(), 2U);
        EXPECT_EQ(quiet(), path.empty() ? "adb: failed to stat : none" : "");
    }
    const std::size_t loads = agent.codes().size();
    apps.section.drop.take({"/1.apk", "/2.apk"});
    finish();
    EXPECT_EQ(adb.calls().back().back(), "/2.apk");
    EXPECT_EQ(agent.codes().size(), loads + 1);
}

TEST_F(Apps, uninstall_the_selected_one_with_the_tools_verdict) {
    press(apps, uninstall);  // nothing is selected
    for (const std::string printed : {"Failure", "Failure [DELETE_FAILED]\n", "Success\n"}) {
        press(apps, refresh);
        adb.answer("uninstall", printed.c_str());
        apps.m_table.select({1}, 1);
        window.test_desktop.answer_alert(yes);
        press(apps, uninstall);
        const std::string verdict = printed == "Failure" ? "[Failure!]" : "[Success!]";
        EXPECT_THAT(lines_before_the_load(),
                    ElementsAre("alert: Are you sure you want to delete the selected \"Fern\" App?",
                                "m_LB_message: Uninstalling application 'Fern'.",
                                "m_LB_message: " + verdict + " Uninstall APK:'a.fern'.",
                                "title 2: Apps(2)", "captions white"));
        EXPECT_EQ(quiet().empty(), printed == "Success\n");
    }
}

TEST_F(Apps, ask_for_patience_when_an_install_ends_during_a_load) {
    agent.be_silent();
    apps.OnBT_Refresh();
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return agent.requests().size() == 2; }));
    g_table_app_need_refresh = 0;
    apps.OnBT_Refresh();  // says nothing
    apps.Install_APK_To_Phone("/a.apk");
    ASSERT_TRUE(window.test_desktop.pump_until([&] { return g_table_app_need_refresh == 1; }));
    EXPECT_EQ(recorder.lines().back(),
              "message: Please wait for a few minutes to load your applications.");
    EXPECT_THAT(recorder.lines_of("message"), testing::SizeIs(1));
}

}  // namespace
}  // namespace velk
