#include "shell/panels.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <utility>

#include "shell/widgets.h"

namespace velk {

namespace {

constexpr QSize first_size{760, 500};

QMessageBox::Icon icon_of(Alert_Style style) {
    return style == Alert_Style::warning ? QMessageBox::Warning : QMessageBox::Information;
}

}  // namespace

QDialog* open_alert_box(QWidget* front, const Alert& alert, std::function<void(int)> answered) {
    auto* const box = new QMessageBox(front);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(icon_of(alert.style));
    box->setWindowTitle(shown(alert.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(shown(alert.text));
    for (int i = 0; i < static_cast<int>(alert.buttons.size()); ++i) {
        // One role for all keeps the given order on every desktop.
        QPushButton* const button = box->addButton(
            shown(alert.buttons[static_cast<std::size_t>(i)]), QMessageBox::ActionRole);
        if (i < alert.last_button()) continue;
        box->setDefaultButton(button);
        box->setEscapeButton(button);
    }
    give_keys(box->buttons());  // the letter alone will do
    const int escape = alert.last_button();
    QObject::connect(box, &QDialog::finished, box, [box, escape, answered = std::move(answered)] {
        const auto pressed = box->buttons().indexOf(box->clickedButton());
        answered(pressed < 0 ? escape : static_cast<int>(pressed));
    });
    box->open();
    return box;
}

namespace {

QFileDialog::FileMode mode_of(const File_Panel& panel) {
    if (panel.kind == File_Panel::Kind::save) return QFileDialog::AnyFile;
    return panel.files ? QFileDialog::ExistingFile : QFileDialog::Directory;
}

QStringList filters_of(const File_Panel& panel) {
    QStringList patterns;
    for (const std::string& pattern : panel.patterns) patterns << shown(pattern);
    return {patterns.join(u' '), QStringLiteral("All files (*)")};
}

/// The toolkit's own panel on every desktop: one that the desktop lends asks about names that
/// exist, and takes either files or folders.
class File_Box : public QFileDialog {
  public:
    File_Box(QWidget* front, const File_Panel& panel)
        : QFileDialog(front, panel.sheet ? Qt::Sheet : Qt::Dialog), panel_(panel) {
        setAttribute(Qt::WA_DeleteOnClose);
        setOptions(DontUseNativeDialog | DontConfirmOverwrite);
        resize(first_size);
        setFileMode(mode_of(panel));
        setOption(ShowDirsOnly, !panel.files);
        setAcceptMode(panel.kind == File_Panel::Kind::save ? AcceptSave : AcceptOpen);
        if (!panel.patterns.empty()) setNameFilters(filters_of(panel));
        if (!panel.title.empty()) setWindowTitle(shown(panel.title));
        if (!panel.message.empty()) show_message();
        if (!panel.prompt.empty()) keep_prompt();
        ask_in_boxes_of_ours();
    }

    std::string chosen_path() const {
        return QFile::encodeName(selectedFiles().value(0)).toStdString();
    }

  protected:
    // The toolkit would go into a folder that is to be chosen like a file.
    void accept() override {
        const bool opens = panel_.kind == File_Panel::Kind::open;
        const QFileInfo chosen(selectedFiles().value(0));
        if (opens && !chosen.filePath().isEmpty() && !chosen.exists())
            tell(chosen.filePath() + QStringLiteral(" does not exist."));
        else if (opens && panel_.files && panel_.folders && chosen.isDir())
            done(Accepted);
        else
            QFileDialog::accept();
    }

  private:
    void tell(const QString& text) {
        open_alert_box(this,
                       {.title = "Information", .text = text.toStdString(), .buttons = {"OK"}},
                       [](int) {});
    }

    // What the toolkit asks and what its menus offer runs in event loops of their own, from which
    // there is no way back once the window is gone.
    void ask_in_boxes_of_ours() {
        setOption(ReadOnly);  // nothing is renamed or deleted here
        for (auto* const widget : findChildren<QWidget*>())
            if (widget->contextMenuPolicy() != Qt::DefaultContextMenu)
                widget->setContextMenuPolicy(Qt::NoContextMenu);
        if (auto* const theirs = findChild<QToolButton*>(QStringLiteral("newFolderButton")))
            put_in_place_of(theirs);
    }

    // The toolkit's own button is disabled where nothing can be renamed.
    void put_in_place_of(QToolButton* theirs) {
        auto* const new_folder = new QToolButton(this);
        new_folder->setObjectName(QStringLiteral("new_folder"));
        new_folder->setIcon(theirs->icon());
        new_folder->setToolTip(QStringLiteral("New Folder"));
        new_folder->setAccessibleName(new_folder->toolTip());
        delete layout()->replaceWidget(theirs, new_folder);
        setTabOrder(theirs, new_folder);
        theirs->hide();
        connect(new_folder, &QToolButton::clicked, this, &File_Box::ask_for_new_folder);
    }

    void ask_for_new_folder() {
        auto* const question = new QInputDialog(this);
        question->setAttribute(Qt::WA_DeleteOnClose);
        question->setWindowTitle(QStringLiteral("New Folder"));
        question->setLabelText(QStringLiteral("Name:"));
        connect(question, &QInputDialog::textValueSelected, this, [this](const QString& name) {
            if (directory().mkdir(name))
                setDirectory(directory().filePath(name));
            else
                tell(QStringLiteral("The folder could not be made."));
        });
        question->open();
    }

    void show_message() {
        auto* const message = new QLabel(shown(panel_.message), this);
        message->setTextFormat(Qt::PlainText);
        message->setWordWrap(true);
        message->setContentsMargins(space_between, space_between, space_between, 0);
        layout()->setMenuBar(message);  // the place above everything else
    }

    // The button is renamed by the toolkit whenever a folder is pointed at.
    void keep_prompt() {
        const auto name_button = [this] { setLabelText(Accept, shown(panel_.prompt)); };
        name_button();
        connect(this, &QFileDialog::currentChanged, this, name_button, Qt::QueuedConnection);
    }

    File_Panel panel_;
};

}  // namespace

QDialog* open_file_box(QWidget* front, const File_Panel& panel,
                       std::function<void(std::string)> chosen) {
    auto* const box = new File_Box(front, panel);
    QObject::connect(box, &QDialog::finished, box, [box, chosen = std::move(chosen)](int result) {
        chosen(result == QDialog::Accepted ? box->chosen_path() : std::string());
    });
    if (panel.sheet) {
        box->open();
    } else {
        box->setWindowModality(Qt::ApplicationModal);
        box->show();
    }
    return box;
}

}  // namespace velk
