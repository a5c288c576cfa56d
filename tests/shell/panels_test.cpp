#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <atomic>

#include "ui/worker.h"
#include "window_test.h"

namespace velk {
namespace {

const Alert question{
    .title = "Information", .text = "Are you <b>sure</b>?", .buttons = {"Yes", "No"}};

constexpr int not_answered = -1;

class Alert_Test : public testing::Test {
  protected:
    void ask_from_a_worker() {
        Worker::start("asking", [this] { answer = open.desktop.run_alert(question); });
        ASSERT_TRUE(wait_until([this] { return box() != nullptr; }));
    }
    QMessageBox* box() { return open.window->findChild<QMessageBox*>(); }

    Open_Window open;
    std::atomic<int> answer = not_answered;
};

TEST_F(Alert_Test, gives_the_asking_worker_the_pressed_button_and_holds_nobody_else) {
    ask_from_a_worker();
    EXPECT_EQ(box()->windowTitle(), "Information");
    EXPECT_EQ(box()->text(), "Are you <b>sure</b>?");
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    bool ran = false;
    open.desktop.post([&] { ran = true; });
    EXPECT_TRUE(wait_until([&] { return ran; }));
    EXPECT_EQ(answer, not_answered);
    QTest::mouseClick(box()->buttons().at(0), Qt::LeftButton);
    EXPECT_TRUE(wait_until([this] { return answer == 0; }));
    open.turn();
    ask_from_a_worker();
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_TRUE(wait_until([this] { return answer == 1; }));
}

/// A panel that a test answers as a person would.
class Panel_Test : public testing::Test {
  protected:
    std::string choose(const File_Panel& panel, const QString& name) {
        std::string path = "not answered";
        open.desktop.open_file_panel(panel, [&](const std::string& chosen) { path = chosen; });
        auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (name.isEmpty()) {
            box->reject();
        } else {
            box->findChild<QLineEdit*>("fileNameEdit")->setText(folder.filePath(name));
            box->findChild<QDialogButtonBox*>()->buttons().at(0)->click();
        }
        open.turn();
        return path;
    }
    std::string full(const char* name) { return folder.filePath(name).toStdString(); }

    Open_Window open;
    const QTemporaryDir folder;
};

TEST_F(Panel_Test, gives_the_path_that_was_chosen_and_none_when_cancelled) {
    QDir(folder.path()).mkdir("folder");
    QFile file(folder.filePath("file.HTML"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const File_Panel save{.kind = File_Panel::Kind::save, .title = "Save"};
    const File_Panel either{.message = "Select", .prompt = "OK", .folders = true, .sheet = true};
    const File_Panel folders{.files = false, .folders = true};
    EXPECT_EQ(choose(save, "new"), full("new"));
    EXPECT_EQ(choose(save, "file.HTML"), full("file.HTML")) << "who asks about it is the program";
    EXPECT_EQ(choose(either, "file.HTML"), full("file.HTML"));
    EXPECT_EQ(choose(either, "folder"), full("folder"));
    EXPECT_EQ(choose(folders, "folder"), full("folder"));
    for (const File_Panel& panel : {save, either, folders}) EXPECT_EQ(choose(panel, ""), "");
}

// A loop of the toolkit's own would go on in a panel that is gone.
TEST_F(Panel_Test, makes_folders_and_misses_files_in_boxes_that_go_with_the_window) {
    open.desktop.open_file_panel({}, [](const std::string&) {});
    auto* const box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    box->setDirectory(folder.path());
    box->findChild<QAbstractButton*>("new_folder")->click();
    auto* const asking = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    asking->setTextValue("made");
    asking->accept();
    EXPECT_EQ(box->directory().path(), folder.filePath("made"));
    QFile file(folder.filePath("gone"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    box->findChild<QLineEdit*>("fileNameEdit")->setText(file.fileName());
    file.remove();
    box->findChild<QDialogButtonBox*>()->buttons().at(0)->click();
    EXPECT_TRUE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
    open.desktop.drop_boxes();
    EXPECT_FALSE(QApplication::activeModalWidget());
}

}  // namespace
}  // namespace velk
