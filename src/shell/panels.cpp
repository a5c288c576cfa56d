#include "shell/panels.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace velk {

namespace {

/// A type of its own, so that closing all of them closes no other box.
class Alert_Box : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;
};

QMessageBox::Icon icon_of(Alert_Style style) {
    return style == Alert_Style::warning ? QMessageBox::Warning : QMessageBox::Information;
}

}  // namespace

void open_alert_box(QWidget* window, const Alert& alert, std::function<void(int)> answered) {
    auto* const box = new Alert_Box(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(icon_of(alert.style));
    box->setWindowTitle(QString::fromUtf8(alert.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromUtf8(alert.text));
    for (int i = 0; i < static_cast<int>(alert.buttons.size()); ++i) {
        // One role for all keeps the given order on every desktop.
        QPushButton* const button = box->addButton(
            QString::fromUtf8(alert.buttons[static_cast<std::size_t>(i)]), QMessageBox::ActionRole);
        if (i < alert.last_button()) continue;
        box->setDefaultButton(button);
        box->setEscapeButton(button);
    }
    const int escape = alert.last_button();
    QObject::connect(box, &QDialog::finished, box, [box, escape, answered = std::move(answered)] {
        const auto pressed = box->buttons().indexOf(box->clickedButton());
        answered(pressed < 0 ? escape : static_cast<int>(pressed));
    });
    box->open();
}

void close_alert_boxes() {
    for (QWidget* const box : QApplication::topLevelWidgets())
        if (dynamic_cast<Alert_Box*>(box)) delete box;
}

}  // namespace velk
