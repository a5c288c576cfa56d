#include "ui/dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>

#include "window_test.h"

namespace velk {
namespace {

struct Letter : Dialog {
    Letter() : Dialog("Letter") {
        const Command pick{.name = "OnBT_Pick",
                           .caption = "Pick",
                           .run = [this] { ++picks, may_pick = 0; },
                           .guard = &may_pick};
        fields = {{.caption = "To", .takes = &to, .beside = pick},
                  {.caption = "Text", .takes = &content, .many_lines = true}};
        commands = ok_and_cancel();
    }
    Text_Field to{"m_ET_To"}, content{"m_ET_Content"};
    Flag may_pick = 1;
    int picks = 0;
};

class Dialog_Test : public testing::Test {
  protected:
    QDialog* show(Dialog& dialog) {
        open.desktop.open_dialog(dialog, [this] { ++closed; });
        open.turn();
        return qobject_cast<QDialog*>(QApplication::activeModalWidget());
    }
    static QWidget* in(QWidget* box, const char* name) { return box->findChild<QWidget*>(name); }

    Letter letter;
    Open_Window open;
    int closed = 0;
};

TEST_F(Dialog_Test, carries_texts_both_ways_and_leads_through_its_fields) {
    QDialog* const box = show(letter);
    auto* const to = box->findChild<QLineEdit*>("m_ET_To");
    ASSERT_EQ(box->focusWidget(), to);
    QTest::keyClicks(to, "Anne");
    EXPECT_EQ(letter.to.text(), "Anne");
    letter.to.set_text("Anna;");
    open.turn();
    EXPECT_EQ(to->text(), "Anna;");
    QWidget* const content = in(box, "m_ET_Content");
    content->setFocus();
    QTest::keyClicks(content, "a\t");
    EXPECT_NE(box->focusWidget(), content);
    QTest::keyClick(content, Qt::Key_Return);
    EXPECT_EQ(letter.content.text(), "a\n");
    QTest::mouseClick(in(box, "OnBT_Pick"), Qt::LeftButton);
    EXPECT_FALSE(in(box, "OnBT_Pick")->isEnabled());
    open.desktop.post([this] { letter.may_pick = 1; });
    open.turn();
    EXPECT_TRUE(in(box, "OnBT_Pick")->isEnabled());
    EXPECT_EQ(closed, 0);
}

TEST_F(Dialog_Test, is_closed_with_OK_or_without_and_opens_again) {
    const struct {
        const char* control;
        Qt::Key key;
        bool ok;
    } ways[] = {{"m_ET_To", Qt::Key_Return, true},
                {"OnBT_Cancel", Qt::Key_Return, false},
                {"m_ET_Content", Qt::Key_Escape, false},
                {"OnBT_OK", Qt::Key_Space, true}};
    for (const auto& [control, key, ok] : ways) {
        QDialog* const box = show(letter);
        in(box, control)->setFocus();
        QTest::keyClick(in(box, control), key);
        EXPECT_EQ(letter.bOK, ok) << control;
        EXPECT_FALSE(QApplication::activeModalWidget()) << control;
    }
    show(letter)->close();
    EXPECT_FALSE(letter.bOK);
    EXPECT_EQ(closed, 5);
}

TEST_F(Dialog_Test, stands_before_what_opened_it_and_goes_with_the_window) {
    QDialog* const below = show(letter);
    Dialog second("second");
    QDialog* const above = show(second);
    EXPECT_EQ(above->parentWidget(), below);
    open.desktop.open_alert({.title = "", .text = "", .buttons = {"OK"}}, [](int) {});
    EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), above);
    open.window->close();
    EXPECT_FALSE(QApplication::activeModalWidget());
    letter.close();  // there is no window any more that it could close
}

TEST_F(Dialog_Test, is_held_but_for_its_closing_while_what_opens_later_is_free) {
    QDialog* const box = show(letter);
    open.desktop.take_input(false);
    QTest::keyClicks(in(box, "m_ET_To"), "a");
    QTest::keyClick(in(box, "m_ET_To"), Qt::Key_Return);
    QTest::keyClick(box, Qt::Key_Escape);
    QTest::mouseClick(in(box, "OnBT_Pick"), Qt::LeftButton);
    EXPECT_EQ(letter.to.text() + std::to_string(letter.picks + closed), "0");
    Letter later;
    QTest::keyClicks(in(show(later), "m_ET_To"), "b");
    EXPECT_EQ(later.to.text(), "b");
    later.close();
    box->close();
    EXPECT_EQ(closed, 2);
    open.desktop.take_input(true);
    QTest::keyClicks(in(show(letter), "m_ET_To"), "c");
    EXPECT_EQ(letter.to.text(), "c");
}

}  // namespace
}  // namespace velk
