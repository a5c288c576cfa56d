// The two pages for a phone that is not reached: what is wrong in one sentence, what Velk sees
// right now, then the steps that help in general.
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <vector>

#include "session/views.h"
#include "shell/look.h"
#include "shell/pages.h"
#include "shell/picture_view.h"

namespace velk {

namespace {

constexpr QSize picture_size{150, 217};
constexpr int badge_size = 26;
constexpr QStringView mark_of_a_point = u"* ";
constexpr QStringView mark_of_a_command = u"$ ";

using Steps = std::vector<const char*>;

const Steps steps_to_allow = {
    "Unlock the phone and look at its screen: it asks “Allow USB debugging?”.",
    "Tick “Always allow from this computer”, so that it asks only once, and tap OK or Allow.",
    "Nothing there? Pull the cable out and plug it in again. If it still does not ask, open the "
    "developer options, tap “Revoke USB debugging authorizations”, and plug in once more.",
    "Then press Refresh.",
};

const Steps steps_to_debugging = {
    "Connect the phone with a USB cable and unlock its screen.",
    "Switch on USB debugging on the phone. Where it is depends on the Android version:\n"
    "* 8 and later: Settings › System › About phone: tap Build number seven times, then "
    "Settings › System › Developer options › USB debugging.\n"
    "* 4.2 to 7: Settings › About phone: tap Build number seven times, then Settings › "
    "Developer options › USB debugging.\n"
    "* 4.0 and 4.1: Settings › Developer options › USB debugging.\n"
    "* 2.3 to 3.x: Settings › Applications › Development › USB debugging.",
    "If it is on already, try another USB cable (some only charge) and another port, best one of "
    "the computer's own.",
    "On Linux your account needs permission to use the phone. Debian and Ubuntu bring it with a "
    "package:\n"
    "$ sudo apt install android-sdk-platform-tools-common\n"
    "$ sudo usermod -aG plugdev $USER\n"
    "Log out and in again, and plug the phone in once more.",
    "Then press Refresh.",
};

QLabel* text_of(const QString& text) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // Commands are there to be copied.
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// A line of a step: a point of a list, a command, or plain words.
QLayout* one_line(const QString& line) {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    const bool point = line.startsWith(mark_of_a_point);
    const bool command = line.startsWith(mark_of_a_command);
    if (point) row->addWidget(new QLabel(QStringLiteral("•")), 0, Qt::AlignTop);
    QLabel* const words = text_of(point || command ? line.mid(2) : line);
    if (command) {
        words->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        words->setProperty("command", true);
        words->setObjectName(QStringLiteral("command"));
        words->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        words->setFocusPolicy(Qt::StrongFocus);
    }
    row->addWidget(words, 1);
    return row;
}

QLayout* numbered(int number, const char* text) {
    auto* const row = new QHBoxLayout;
    set_tight(row, 12);
    auto* const badge = new QLabel(QString::number(number));
    badge->setProperty("badge", true);
    badge->setAlignment(Qt::AlignCenter);
    badge->setFixedSize(badge_size, badge_size);
    row->addWidget(badge, 0, Qt::AlignTop);
    auto* const lines = new QVBoxLayout;
    lines->setContentsMargins(0, 4, 0, 0);
    lines->setSpacing(6);
    for (const QString& line : QString::fromUtf8(text).split(u'\n'))
        lines->addLayout(one_line(line));
    row->addLayout(lines, 1);
    return row;
}

QWidget* scrolled(QLayout* layout) {
    auto* const inside = new QWidget;
    inside->setObjectName(QStringLiteral("trouble_text"));
    inside->setLayout(layout);
    auto* const area = new QScrollArea;
    area->setObjectName(QStringLiteral("trouble_scroll"));
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(inside);
    area->setAccessibleName(QStringLiteral("What to do"));
    return area;
}

QWidget* steps_beside_picture(const Steps& steps, const char* picture) {
    auto* const numbers = new QVBoxLayout;
    set_tight(numbers, space_between);
    int number = 0;
    for (const char* const step : steps) numbers->addLayout(numbered(++number, step));
    numbers->addStretch();
    auto* const drawing = new Picture_View(picture_size);
    drawing->show_picture(QString::fromLatin1(picture));
    auto* const row = new QHBoxLayout;
    set_tight(row, 2 * large_space);
    row->addStretch(1);
    row->addWidget(drawing, 0, Qt::AlignTop);
    row->addLayout(numbers, 8);
    row->addStretch(1);
    return scrolled(row);
}

/// The sentences and the button stay in sight; the steps scroll when the window is small.
QWidget* trouble_page(Connection_View& view, const Window_Parts& parts, QLabel* sentence,
                      QWidget* steps) {
    auto* const page = new QWidget;
    QPushButton* const refresh = refresh_button(parts, [&view] { view.OnBT_Refresh(); });
    refresh->setObjectName(QStringLiteral("OnBT_Refresh"));
    sentence->setFont(scaled_font(1.45, true));
    auto* const top = new QHBoxLayout;
    set_tight(top, large_space);
    top->addWidget(sentence, 1);
    top->addWidget(refresh, 0, Qt::AlignVCenter);
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(2 * large_space, large_space, 2 * large_space, space_between);
    column->setSpacing(large_space);
    column->addLayout(top);
    column->addWidget(finding_of(view, parts));
    column->addWidget(steps, 1);
    return page;
}

}  // namespace

QWidget* finding_of(Connection_View& view, const Window_Parts& parts) {
    QLabel* const finding = text_of({});
    finding->setProperty("finding", true);
    finding->setAccessibleDescription(QStringLiteral("What Velk sees now"));
    Label& trouble = view.m_LB_Trouble;
    bind_text(parts.binding, trouble, finding);
    announce(parts.binding, trouble, finding);
    parts.binding.bind(trouble, finding,
                       [&trouble, finding] { finding->setHidden(trouble.text().empty()); });
    return finding;
}

QWidget* allow_pc_page(View_AllowPCConnect& view, const Window_Parts& parts) {
    auto* const sentence = new QLabel;
    bind_text(parts.binding, view.m_LB_Tips, sentence);
    return trouble_page(view, parts, sentence, steps_beside_picture(steps_to_allow, "allow_pc"));
}

QWidget* usb_debugging_page(View_SettingPhoneUSB& view, const Window_Parts& parts) {
    auto* const sentence =
        text_of(QStringLiteral("No phone was found that this computer may talk to."));
    return trouble_page(view, parts, sentence,
                        steps_beside_picture(steps_to_debugging, "usb_debugging"));
}

}  // namespace velk
