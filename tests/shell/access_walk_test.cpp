// Walks over everything that Velk shows, in both themes, as somebody who has no mouse or hears the
// window instead of seeing it.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "access_walk.h"
#include "session/section_views.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

using Check = QStringList (*)(QWidget&);

const std::pair<const char*, Check> checks[] = {
    {"no name", nameless},       {"no way by keys", without_keys},
    {"Tab jumps", jumps_of_tab}, {"keys of two", shared_keys},
    {"pale", pale_texts},        {"clipped", clipped_texts}};

/// Dresses the application in a theme of the desktop's, and back when it goes.
class Theme {
  public:
    explicit Theme(bool dark) {
        if (!dark) return;
        QPalette palette(QColor(0x24, 0x27, 0x2c));
        palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x22));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, QColor(0xe6, 0xe8, 0xea));
        QApplication::setPalette(palette);
    }
    ~Theme() { QApplication::setPalette(QApplication::style()->standardPalette()); }
};

/// In the light theme and in the dark one.
class Access_Walk : public testing::TestWithParam<bool> {
  protected:
    Access_Walk() {
        qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
        open.fill();
        open.connect();
        EXPECT_TRUE(wait_until([this] { return !open.document->is_at_work(); }));
    }
    ~Access_Walk() override { qunsetenv("XDG_CACHE_HOME"); }

    static void walk(QWidget& window, const std::string& where) {
        for (const auto& [what, check] : checks)
            EXPECT_EQ(check(window).join(" | ").toStdString(), "") << what << " in " << where;
    }
    /// In the smallest window and in a large one.
    void walk_page(const std::string& where) {
        for (const QSize size : {QSize(1920, 1080), QSize(900, 600)}) {
            // A desktop's late answer to the size before undoes this one: it is asked for again.
            EXPECT_TRUE(wait_until([this, size] {
                open.window->resize(size);
                open.turn();
                return open.window->size() == size;
            })) << where;
            walk(*open.window, where);
        }
    }
    void walk_box(const std::string& where) {
        open.turn();
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_TRUE(box) << where;
        EXPECT_TRUE(wait_until_active(*box)) << where;
        walk(*box, where);
        box->close();
        // The platform without a display leaves nobody in front.
        QWidget* const below = QApplication::activeModalWidget();
        QWidget* const front = below ? below : open.window.get();
        front->activateWindow();
        EXPECT_TRUE(wait_until_active(*front));
    }
    void show(int view, bool summary = false) {
        open.document->hidden_some(!summary);
        open.document->displayViewController(view);
        open.turn();
    }
    /// Two rows of the section's kind, of which the first is selected.
    template <class View>
    void show_rows(int id) {
        auto& source =
            dynamic_cast<View&>(*open.document->m_views[static_cast<std::size_t>(id)]).source;
        auto& rows = source.table_rows;
        for (const char* const text : {"1", "2"}) {
            rows.push_back({});
            for (int i = 0; i < static_cast<int>(rows.columns().size()); ++i)
                rows.set_cell(rows.count() - 1, i, text);
        }
        source.m_table.reload_appended();
        show(id);
        open.find<QTableView>(source.m_table.name().c_str())->selectRow(0);
        open.turn();
        walk_page("view " + std::to_string(id));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWidget* const box = QApplication::activeModalWidget();
        QTest::keyClick(box ? box : open.window.get(), key, modifiers);
        open.turn();
    }

    const Theme theme{GetParam()};
    const QTemporaryDir cache;
    Open_Window open;
};
INSTANTIATE_TEST_SUITE_P(Themes, Access_Walk, testing::Bool(),
                         [](const auto& theme) { return theme.param ? "dark" : "light"; });

TEST_P(Access_Walk, leads_through_every_view) {
    walk_page("the start beside the summary");
    open.document->m_LB_Port.set_text("Another program has the port.");
    for (const int view : {DEFINE_VIEW_Start, DEFINE_VIEW_AllowPCConnect,
                           DEFINE_VIEW_SettingPhoneUSB, DEFINE_NULL}) {
        show(view);
        walk_page("view " + std::to_string(view));
    }
    show_rows<View_Contacts>(DEFINE_VIEW_Contacts);
    show_rows<View_SMS>(DEFINE_VIEW_SMS);
    show_rows<View_App>(DEFINE_VIEW_App);
    show_rows<View_Music>(DEFINE_VIEW_Music);
    show_rows<View_Video>(DEFINE_VIEW_Video);
    show_rows<View_Book>(DEFINE_VIEW_Book);
    show_rows<View_Photo>(DEFINE_VIEW_Photo);
    press(Qt::Key_P);
    walk_page("pictures");
    press(Qt::Key_F);
    QTest::keyClicks(open.window->focusWidget(), "nothing");
    walk_page("a search in vain");
    press(Qt::Key_0);
    ASSERT_FALSE(open.document->m_Control_Box1.view());
    walk_page("My Android");
}

TEST_P(Access_Walk, leads_through_every_menu) {
    show_rows<View_Photo>(DEFINE_VIEW_Photo);
    for (QAction* const one : open.window->menu().actions()) {
        QMenu& menu = *one->menu();
        menu.popup(QPoint());
        menu.setActiveAction(menu.actions().first());
        EXPECT_EQ(pale_texts(menu).join(" | ").toStdString(), "") << one->text().toStdString();
        EXPECT_EQ(nameless(menu).join(" | ").toStdString(), "") << one->text().toStdString();
        menu.close();
    }
}

TEST_P(Access_Walk, leads_through_every_box) {
    show_rows<View_Contacts>(DEFINE_VIEW_Contacts);
    press(Qt::Key_N);
    walk_box("Contacts_Add");
    press(Qt::Key_E);
    walk_box("Contacts_Edit");
    show(DEFINE_VIEW_SMS);
    press(Qt::Key_N);
    ASSERT_TRUE(wait_until_active(*QApplication::activeModalWidget()));
    press(Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(wait_until(
        [] { return QApplication::activeModalWidget()->objectName() == "SMS_Contacts"; }));
    EXPECT_TRUE(wait_until([this] { return !open.document->is_at_work(); }));
    walk_box("the picker");
    walk_box("the composer");
    open.desktop.open_alert(yes_or_no("Are you sure?"), [](int) {});
    walk_box("a question");
    for (const File_Panel& panel :
         {File_Panel{.kind = File_Panel::Kind::save, .title = "Save"},
          File_Panel{.message = "Select", .prompt = "OK", .folders = true, .sheet = true}}) {
        open.desktop.open_file_panel(panel, [](const std::string&) {});
        QApplication::activeModalWidget()->findChild<QAbstractButton*>("new_folder")->click();
        walk_box("a new folder");
        walk_box("a file panel");
    }
    press(Qt::Key_F1, Qt::ShiftModifier);
    walk_box("About");
}

// What the walk would be worth if these were not found.
TEST(Access_Walk_Itself, finds_what_is_wrong) {
    test_application();
    QWidget window;
    auto* const column = new QVBoxLayout(&window);
    auto* const right = new QPushButton("one", &window);
    auto* const wrong = new QPushButton(&window);
    column->addWidget(right);
    column->addWidget(wrong);
    window.show();
    ASSERT_TRUE(wait_until_active(window));
    const struct {
        Check check;
        std::function<void()> spoil, mend;
    } faults[] = {
        {nameless, [] {}, [&] { wrong->setText("two"); }},
        {without_keys, [&] { wrong->setFocusPolicy(Qt::NoFocus); },
         [&] { wrong->setFocusPolicy(Qt::StrongFocus); }},
        {jumps_of_tab, [&] { column->insertWidget(0, wrong); }, [&] { column->addWidget(wrong); }},
        {shared_keys,
         [&] {
             right->setShortcut(Qt::Key_F2);
             wrong->setShortcut(Qt::Key_F2);
         },
         [&] { wrong->setShortcut(Qt::Key_F3); }},
        {pale_texts, [&] { wrong->setStyleSheet("color: #888888; background: #777777"); },
         [&] { wrong->setStyleSheet("color: #000000; background: #777777"); }},
    };
    for (std::size_t i = 0; i < std::size(faults); ++i) {
        faults[i].spoil();
        QTest::qWait(0);
        EXPECT_EQ(faults[i].check(window).size(), 1) << i;
        faults[i].mend();
        QTest::qWait(0);
        EXPECT_EQ(faults[i].check(window).join(" "), "") << i;
    }
}

}  // namespace
}  // namespace velk
