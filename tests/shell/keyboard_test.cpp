// A whole session with the real window, the real adb and the demo phone, and nothing but keys.
#include <gtest/gtest.h>

#include <QApplication>
#include <fstream>
#include <iterator>

#include "end_to_end/demo_phone_programs.h"
#include "managers/contacts_tablesource.h"
#include "ui/program_wide.h"
#include "window_test.h"

namespace velk {
namespace {

QWidget* box() {
    return QApplication::activeModalWidget();
}

class By_Keys_Alone : public testing::Test, protected Demo_Phone_Programs {
  protected:
    void SetUp() override {
        start_phone();
        ASSERT_TRUE(wait_until([this] { return phone_is_listed(); }));
    }

    /// Where a person's keys go now.
    QWidget* listener() {
        QWidget* const front = box() ? box() : open.window.get();
        return front->focusWidget() ? front->focusWidget() : front;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        bring_front();
        QTest::keyClick(listener(), key, modifiers);
        open.turn();
    }
    void type(const QString& text) {
        bring_front();
        for (const QChar letter : text) QTest::keyClicks(listener(), letter);
    }
    // What a desktop does when a box opens or goes.
    void bring_front() {
        QWidget* const front = box() ? box() : open.window.get();
        front->activateWindow();
        ASSERT_TRUE(wait_until_active(*front));
    }
    bool work_ends() {
        return wait_until([this] { return !open.document->is_at_work(); });
    }
    std::size_t contacts() { return g_contacts_tablesource->table_rows.size(); }

    Open_Window open{PROGRAM_FOLDER};
};

TEST_F(By_Keys_Alone, connects_adds_finds_and_deletes_a_contact_and_exports_the_rest) {
    press(Qt::Key_F5);
    ASSERT_TRUE(wait_until([] { return g_connected_adb && g_can_click_refresh; }));
    ASSERT_TRUE(work_ends());
    press(Qt::Key_1, Qt::ControlModifier);
    ASSERT_TRUE(wait_until([this] { return contacts() > 0; }) && work_ends());
    const std::size_t before = contacts();

    press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(box());
    type("Zoe Quill\t+1555");
    press(Qt::Key_Return);
    ASSERT_TRUE(wait_until([&] { return contacts() == before + 1; }) && work_ends());

    press(Qt::Key_F, Qt::ControlModifier);
    type("Zoe Quill");
    press(Qt::Key_Return);
    press(Qt::Key_Delete);
    ASSERT_TRUE(wait_until([] { return box() != nullptr; }));
    press(Qt::Key_Y);
    ASSERT_TRUE(wait_until([&] { return contacts() == before; }) && work_ends());
    press(Qt::Key_Escape);

    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(wait_until([] { return box() != nullptr; }));
    type(QString::fromStdString(file("book")));
    press(Qt::Key_Return);
    const Label& status = *g_contacts_tablesource->section.status;
    ASSERT_TRUE(wait_until([&] { return status.text().starts_with("Successed to save"); }));
    std::ifstream page(file("book.HTML"));
    const std::string written(std::istreambuf_iterator<char>(page), {});
    EXPECT_NE(written.find(g_contacts_tablesource->table_rows[0].col_phone_number),
              std::string::npos);
    EXPECT_EQ(written.find("Zoe Quill"), std::string::npos);
}

}  // namespace
}  // namespace velk
