// Everything that a person can do, on private data of every kind: the report has none of it.
#include <algorithm>
#include <fstream>
#include <regex>
#include <set>

#include "base/file.h"
#include "base/trace.h"
#include "end_to_end/demo_session.h"
#include "managers/sms_tablesource.h"
#include "session/section_views.h"

namespace velk {
namespace {

using testing::HasSubstr;

class Report : public On_The_Demo_Phone, public testing::WithParamInterface<std::string> {
  protected:
    const Section& section(int id) const {
        return *document.m_views[static_cast<std::size_t>(id)]->section();
    }
    void press(int id, const std::string& caption) {
        for (const Command& command : section(id).commands)
            if (command.caption == caption) return command.run();
        ADD_FAILURE() << "no button " << caption;
    }
    void select_first(int id) {
        Table& table = *section(id).table;
        ASSERT_GT(table.rows().count(), 0);
        table.select({0}, 0);
    }
    std::string new_file(const std::string& name) {
        std::ofstream(file(name)) << "content";
        return private_text(file(name));
    }
    std::string private_text(const std::string& text) {
        private_.insert(text);
        const std::string name = std::filesystem::path(text).filename();
        if (!name.empty()) private_.insert(name);
        return text;
    }
    template <class Dialog_Type>
    void fill(const std::string& name, const std::string& number) {
        private_text(name), private_text(number);
        desktop.use_dialog([=](Dialog& dialog) {
            dynamic_cast<Dialog_Type&>(dialog).m_Edit_Name.type(name);
            dynamic_cast<Dialog_Type&>(dialog).m_Edit_PhoneNumber.type(number);
            dialog.OnBT_OK();
        });
    }

    /// Does it, and looks for all that was ever private in a report of it, from its beginning on.
    void step(const std::string& what, const std::function<void()>& act) {
        SCOPED_TRACE(what);
        trace("\nstep %d\n", steps_);
        act();
        desktop.finish_work();
        gather_tables();
        const std::string mark = format("\nstep %d\n", steps_);
        const std::string report = saved_report();
        ASSERT_THAT(report, HasSubstr(mark)) << "too much to see it all";
        for (const std::string& text : private_)
            EXPECT_EQ(report.find(text), std::string::npos) << text << " is in " << report;
        EXPECT_FALSE(std::regex_search(report, std::regex("\\([0-9]+\\) ?-?[0-9]+:'")));
    }
    std::string saved_report() {
        const std::string name = "report " + std::to_string(steps_++);
        desktop.choose_file(file(name));
        document.save_report("Qt 6", "Debian 12");
        desktop.finish_work();
        const std::string path = file(name + ".txt");
        EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0600));
        return read_whole_file(path).value_or("");
    }

    void do_all_with_contacts() {
        step("list contacts", [this] { load_contacts(); });
        step("add a contact", [this] {
            fill<Contacts_Add>("Zyx Quillfeather", "+491517654321");
            press(DEFINE_VIEW_Contacts, "Add");
        });
        step("modify a contact", [this] {
            select_first(DEFINE_VIEW_Contacts);
            fill<Contacts_Edit>("Wvu Sparrowdale", "+491601234567");
            testing::internal::CaptureStdout();
            press(DEFINE_VIEW_Contacts, "Modify");
            desktop.finish_work();
            const std::string printed = testing::internal::GetCapturedStdout();
            const char* const shown = GetParam() == "first" ? ":'W'\n" : "Wvu Sparrowdale";
            EXPECT_THAT(printed, HasSubstr(shown)) << "what is private goes its usual way";
        });
        for (const int id : {DEFINE_VIEW_Contacts, DEFINE_VIEW_SMS})
            step("export " + section(id).title, [this, id] {
                document.displayViewController(id);
                if (id == DEFINE_VIEW_SMS) document.OnBT_SMS();
                desktop.finish_work();
                desktop.choose_file(private_text(file("page of " + std::to_string(id))));
                press(id, "Export");
            });
        step("import contacts", [this] {
            g_contacts_tablesource->ContactsImport(
                file("page of " + std::to_string(DEFINE_VIEW_Contacts) + ".HTML"));
        });
        step("import what is no page",
             [this] { g_contacts_tablesource->ContactsImport(new_file("no page at all")); });
        step("delete a contact", [this] {
            select_first(DEFINE_VIEW_Contacts);
            desktop.answer_alert(yes);
            press(DEFINE_VIEW_Contacts, "Delete");
        });
    }
    void do_all_with_messages() {
        step("send a message", [this] {
            desktop.use_dialog([this](Dialog&) {
                SMS_Send& composer = g_sms_tablesource->composer();
                composer.m_ET_Send_Contects_telname.type(private_text("99887766") + ";");
                composer.m_ET_SMS_Content.type(private_text("Meet me at Tern Lane"));
                composer.OnBT_Send();
            });
            press(DEFINE_VIEW_SMS, "Send");
        });
        step("delete a message", [this] {
            press(DEFINE_VIEW_SMS, "Refresh");
            desktop.finish_work();
            select_first(DEFINE_VIEW_SMS);
            desktop.answer_alert(yes);
            press(DEFINE_VIEW_SMS, "Delete");
        });
    }
    void do_all_with_applications() {
        step("list applications", [this] { document.OnBT_App(); });
        step("install", [this] {
            g_app_tablesource->Install_APK_To_Phone(new_file("larch app.apk"));
            desktop.finish_work();
            g_app_tablesource->Install_APK_To_Phone(private_text(file("missing app.apk")));
        });
        step("uninstall", [this] {
            select_first(DEFINE_VIEW_App);
            desktop.answer_alert(yes);
            press(DEFINE_VIEW_App, "Uninstall");
        });
    }
    void do_all_with_files() {
        const std::pair<int, const char*> panes[] = {{DEFINE_VIEW_Music, "alder song.mp3"},
                                                     {DEFINE_VIEW_Photo, "alder photo.jpg"},
                                                     {DEFINE_VIEW_Video, "alder film.mp4"},
                                                     {DEFINE_VIEW_Book, "alder book.epub"}};
        for (const auto& [view, file_name] : panes) {
            step("add to " + section(view).title, [this, id = view, name = file_name] {
                desktop.choose_file(new_file(name));
                desktop.answer_alert(0);
                press(id, "Add");
            });
            step("export from " + section(view).title, [this, id = view] {
                select_first(id);
                std::filesystem::create_directory(file("out"));
                desktop.choose_file(file("out"));
                desktop.answer_alert(0);
                press(id, "Export");
            });
            step("delete from " + section(view).title, [this, id = view] {
                select_first(id);
                desktop.answer_alert(yes);
                press(id, "Delete");
            });
        }
    }

    std::set<std::string> private_;

  private:
    /// Cells that are too short, or of numbers alone, may be somewhere by chance.
    void gather_tables() {
        for (int id = DEFINE_VIEW_Contacts; id <= DEFINE_VIEW_Book; ++id) {
            if (!document.m_views[static_cast<std::size_t>(id)]->section()) continue;
            const Table_Rows& rows = section(id).table->rows();
            for (int row = 0; row < rows.count(); ++row)
                for (int column = 0; column < static_cast<int>(rows.columns().size()); ++column)
                    if (rows.cell(row, column).size() >= 5 &&
                        rows.columns()[static_cast<std::size_t>(column)].comparison ==
                            Comparison::text)
                        private_text(rows.cell(row, column));
        }
    }

    int steps_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Wires, Report, testing::Values<std::string>("first", "second"),
                         [](const auto& wire) { return wire.param; });

TEST_P(Report, has_nothing_private_whatever_was_done) {
    private_text(PROGRAM_FOLDER), private_text(file("")), private_text("Quixmoss");
    step("connect", [this] {
        connect({"--model", "Quixmoss", "--contacts", "5", "--messages", "5", "--music", "3",
                 "--photos", "3", "--videos", "3", "--books", "3", "--apps", "3", "--wires",
                 GetParam()});
        private_text(serial);
    });
    do_all_with_contacts();
    do_all_with_messages();
    do_all_with_applications();
    do_all_with_files();
    step("refused", [this] {
        tell("play refuse-install");
        refresh();
    });
    EXPECT_GT(private_.size(), 80U) << "there was not much to be found";
    EXPECT_THAT(saved_report(), HasSubstr("device sn id:***,connected : 1 n"));
}

}  // namespace
}  // namespace velk
