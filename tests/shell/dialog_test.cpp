#include "ui/dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTextEdit>
#include <QTimer>
#include <atomic>

#include "shell/detail_pane.h"
#include "ui/worker.h"
#include "window_test.h"

namespace velk {
namespace {

struct Letter : Dialog {
    Letter() : Dialog("Letter") {
        window_title.set_text("Write......");
        fields = {{.caption = "ID", .shows = &id},
                  {.caption = "To",
                   .takes = &to,
                   .beside = Command{.name = "OnBT_Pick",
                                     .caption = "Pick",
                                     .run = [this] { ++picks, may_pick = 0; },
                                     .guard = &may_pick}},
                  {.caption = "Text", .takes = &content, .many_lines = true}};
        status = &tips;
        commands = ok_and_cancel();
    }
    Label id{"m_LB_ID"}, tips{"m_LB_Tips"};
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
    letter.to.set_text("old");
    QDialog* const box = show(letter);
    EXPECT_EQ(box->objectName(), "Letter");
    EXPECT_EQ(box->windowTitle(), "Write......");
    auto* const to = box->findChild<QLineEdit*>("m_ET_To");
    ASSERT_EQ(box->focusWidget(), to);
    QTest::keyClicks(to, "Anne");
    EXPECT_EQ(letter.to.text(), "Anne");
    letter.to.set_text("Anna;");
    letter.id.set_text("7");
    open.turn();
    EXPECT_EQ(to->text(), "Anna;");
    QWidget* const content = in(box, "m_ET_Content");
    content->setFocus();
    QTest::keyClicks(content, "a\t");
    EXPECT_NE(box->focusWidget(), content);
    content->setFocus();
    QTest::keyClick(content, Qt::Key_Return);
    EXPECT_EQ(letter.content.text(), "a\n");
    EXPECT_EQ(closed, 0);
}

TEST_F(Dialog_Test, is_closed_with_OK_or_without_and_opens_again) {
    const struct {
        const char* control;
        Qt::Key key;
        bool ok;
    } ways[] = {{"m_ET_To", Qt::Key_Return, true},       {"m_ET_To", Qt::Key_Escape, false},
                {"OnBT_OK", Qt::Key_Space, true},        {"OnBT_Cancel", Qt::Key_Return, false},
                {"m_ET_Content", Qt::Key_Escape, false}, {nullptr, Qt::Key_unknown, false}};
    for (const auto& [control, key, ok] : ways) {
        QDialog* const box = show(letter);
        ASSERT_TRUE(box);
        if (control) {
            in(box, control)->setFocus();
            QTest::keyClick(in(box, control), key);
        } else {
            box->close();
        }
        open.turn();
        EXPECT_EQ(letter.bOK, ok) << control;
        EXPECT_FALSE(QApplication::activeModalWidget()) << control;
    }
    EXPECT_EQ(closed, 6);
}

TEST_F(Dialog_Test, disables_a_button_while_its_action_runs) {
    QWidget* const pick = in(show(letter), "OnBT_Pick");
    QTest::mouseClick(pick, Qt::LeftButton);
    EXPECT_FALSE(pick->isEnabled());
    open.desktop.post([this] { letter.may_pick = 1; });
    open.turn();
    EXPECT_TRUE(pick->isEnabled());
    EXPECT_EQ(letter.picks, 1);
}

TEST_F(Dialog_Test, stands_before_what_opened_it_and_goes_with_the_window) {
    QDialog* const below = show(letter);
    Dialog second("second");
    QDialog* const above = show(second);
    EXPECT_EQ(above->parentWidget(), below);
    std::atomic<bool> let_go = false;
    Worker::start("asking", [&] {
        EXPECT_EQ(open.desktop.run_alert({.title = "", .text = "", .buttons = {"Yes", "No"}}), 1);
        let_go = true;
    });
    ASSERT_TRUE(wait_until([&] { return QApplication::activeModalWidget() != above; }));
    EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), above);
    QTimer::singleShot(0, open.window.get(), [&] { open.window->close(); });
    QApplication::exec();
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_TRUE(let_go);
    letter.close();  // there is no window any more that it could close
}

TEST_F(Dialog_Test, holds_what_stands_on_the_screen_but_for_its_closing) {
    QDialog* const box = show(letter);
    open.desktop.take_input(false);
    QTest::keyClicks(in(box, "m_ET_To"), "a");
    QTest::keyClick(box, Qt::Key_Escape);
    QTest::mouseClick(in(box, "OnBT_Pick"), Qt::LeftButton);
    QTest::keyClick(in(box, "m_ET_To"), Qt::Key_Return);
    EXPECT_EQ(letter.to.text() + std::to_string(letter.picks + closed), "0");
    Letter free;
    QTest::keyClicks(in(show(free), "m_ET_To"), "b");
    EXPECT_EQ(free.to.text(), "b");
    free.close();
    box->close();
    EXPECT_EQ(closed, 2);
    open.desktop.take_input(true);
    QTest::keyClicks(in(show(letter), "m_ET_To"), "c");
    EXPECT_EQ(letter.to.text(), "c");
}

TEST_F(Dialog_Test, lets_a_row_that_is_shown_in_full_be_read_and_copied_with_the_keyboard) {
    Label text("text");
    Binding binding;
    Detail_Pane pane({.text = &text, .empty_text = "Select a message."}, binding);
    auto* const reading = pane.findChild<QTextEdit*>();
    EXPECT_EQ(reading->placeholderText(), "Select a message.");
    text.set_text("<b>one</b>\ntwo");
    binding.flush();
    EXPECT_EQ(reading->toPlainText(), "<b>one</b>\ntwo");
    EXPECT_EQ(reading->placeholderText(), "");
    reading->selectAll();
    QTest::keyClicks(reading, "x");
    EXPECT_EQ(reading->toPlainText(), "<b>one</b>\ntwo");
    EXPECT_TRUE(reading->textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

}  // namespace
}  // namespace velk
