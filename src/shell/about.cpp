#include "shell/about.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

#include "base/text.h"
#include "shell/look.h"
#include "shell/pictures.h"
#include "shell/widgets.h"
#include "version.h"

namespace velk {

namespace {

constexpr QSize size_of_the_icon{64, 64};
constexpr QSize room_for_the_notices{520, 260};

QString resource(const char* name) {
    QFile file(QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QLabel* selectable(const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QLayout* heading(QWidget* parent) {
    auto* const row = new QHBoxLayout;
    set_tight(row, space_between);
    auto* const icon = new QLabel(parent);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/velk.svg")).pixmap(size_of_the_icon));
    row->addWidget(icon);
    auto* const lines = new QVBoxLayout;
    set_tight(lines, 2);
    QLabel* const name = selectable(QString::fromLatin1(g_product_name), parent);
    name->setFont(scaled_font(1.6, true));
    QLabel* const version = selectable(shown(format("Version: %s ", g_version)), parent);
    version->setObjectName(QStringLiteral("version"));
    make_quiet(version);
    lines->addStretch();
    lines->addWidget(name);
    lines->addWidget(version);
    lines->addStretch();
    row->addLayout(lines, 1);
    return row;
}

}  // namespace

About::About(QWidget* window) : QDialog(window, Qt::Sheet) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About ") + QString::fromLatin1(g_product_name));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(large_space, large_space, large_space, space_between);
    column->setSpacing(space_between);
    column->addLayout(heading(this));
    auto* const notices = new QTextEdit(this);
    notices->setObjectName(QStringLiteral("notices"));
    notices->setAccessibleName(QStringLiteral("Licences"));
    notices->setReadOnly(true);
    notices->setTabChangesFocus(true);
    notices->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    notices->setMinimumSize(room_for_the_notices);
    notices->setPlainText(resource(":/LICENSE") + u'\n' + resource(":/notices.txt"));
    column->addWidget(notices, 1);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    QPushButton* const close = buttons->button(QDialogButtonBox::Close);
    close->setIcon({});
    close->setFocus();
}

}  // namespace velk
