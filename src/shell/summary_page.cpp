#include "shell/summary_page.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "session/main_document.h"
#include "shell/level_gauge.h"
#include "shell/look.h"
#include "shell/picture_view.h"
#include "shell/pictures.h"
#include "shell/text_label.h"
#include "ui/program_wide.h"

namespace velk {

namespace {

constexpr int widest = 760;  // wider, and the eye loses the line
constexpr int icon_of_a_shortcut = 40;
constexpr int icon_of_a_storage = 22;

}  // namespace

/// The controls that make up one card.
struct Summary_Page::Storage {
    const char* title;
    const char* icon;
    Label& free;
    Label& caption;
    Label& ground;
    Level_Indicator& gauge;
};

Summary_Page::Summary_Page(const Window_Parts& parts) : parts_(parts) {
    setObjectName(QStringLiteral("summary_page"));
    setAttribute(Qt::WA_StyledBackground);
    MainDocument& document = parts.document;
    auto* const column = new QVBoxLayout;
    set_tight(column, large_space);
    auto* const cards = new QHBoxLayout;
    set_tight(cards, space_between);
    cards->addWidget(storage_card({"Phone memory", "my_android", document.m_LB_Size_PhoneTotalFree,
                                   document.m_LB_Free_Phone_Caption, document.m_LB_Size_Phone_BK,
                                   document.m_LevelIndicator_Size_Phone}));
    cards->addWidget(storage_card({"Storage", "storage", document.m_LB_Size_StorageTotalFree,
                                   document.m_LB_Free_Storage_Caption,
                                   document.m_LB_Size_Storage_BK,
                                   document.m_LevelIndicator_Size_Storage}));
    column->addStretch(1);
    column->addWidget(heading());
    column->addLayout(cards);
    column->addWidget(shortcuts());
    column->addStretch(2);
    auto* const middle = new QWidget(this);
    middle->setLayout(column);
    middle->setMaximumWidth(widest);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(large_space, space_between, large_space, space_between);
    row->addWidget(middle);
    watch_controls();
}

QWidget* Summary_Page::heading() {
    auto* const line = new QWidget(this);
    auto* const row = new QHBoxLayout(line);
    set_tight(row, space_between);
    auto* const name = new Text_Label(line);
    name->setFont(scaled_font(2, true));
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* const refresh =
        refresh_button(parts_, [&document = parts_.document] { document.OnBT_Refresh(); });
    row->addWidget(name, 1);
    row->addWidget(refresh);
    bind_label(parts_.binding, parts_.document.m_LB_MobileNameBig, name);
    bind_button(parts_.binding, parts_.document.m_BT_Refresh, refresh);
    return line;
}

QWidget* Summary_Page::storage_card(const Storage& storage) {
    auto* const card = new QFrame(this);
    card->setProperty("class", "Card");
    auto* const lines = new QGridLayout(card);
    lines->setContentsMargins(space_between, space_between, space_between, space_between);
    lines->setVerticalSpacing(small_space);
    auto* const title = new QLabel(QString::fromLatin1(storage.title), card);
    make_quiet(title);
    auto* const free = new Text_Label(card);
    free->setFont(scaled_font(1.6, true));
    auto* const caption = new Text_Label(card);
    make_quiet(caption);
    auto* const ground = new Text_Label(card);
    ground->setProperty("gauge_ground", true);
    auto* const gauge = new Level_Gauge(Level_Gauge::Shape::bar, storage.gauge.maximum(), card);
    gauge->setAccessibleName(title->text());
    lines->addWidget(new Icon_View(QString::fromLatin1(storage.icon), icon_of_a_storage), 0, 0);
    lines->addWidget(title, 0, 1, 1, 2);
    lines->addWidget(free, 1, 0, 1, 2);
    lines->addWidget(caption, 1, 2, Qt::AlignBottom);
    lines->addWidget(ground, 2, 0, 1, 3);
    lines->addWidget(gauge, 2, 0, 1, 3);  // over its ground
    lines->setColumnStretch(2, 1);
    ground->setFixedHeight(gauge->sizeHint().height());
    bind_label(parts_.binding, storage.free, free);
    bind_label(parts_.binding, storage.caption, caption);
    bind_label(parts_.binding, storage.ground, ground);
    bind_gauge(parts_.binding, storage.gauge, gauge);
    return card;
}

QWidget* Summary_Page::shortcuts() {
    auto* const line = new QWidget(this);
    auto* const row = new QHBoxLayout(line);
    set_tight(row, space_between);
    MainDocument& document = parts_.document;
    add_shortcut(row, document.m_BT_Bottom_Contacts, "contacts",
                 &MainDocument::OnBT_Bottom_Contacts);
    add_shortcut(row, document.m_BT_Bottom_SMS, "sms", &MainDocument::OnBT_Bottom_SMS);
    add_shortcut(row, document.m_BT_Bottom_Apps, "apps", &MainDocument::OnBT_Bottom_Apps);
    return line;
}

void Summary_Page::add_shortcut(QHBoxLayout* row, Button& outlet, const char* icon,
                                void (MainDocument::*handler)()) {
    auto* const button = new QPushButton(this);
    button->setIcon(themed_icon(QString::fromLatin1(icon)));
    button->setIconSize({icon_of_a_shortcut, icon_of_a_shortcut});
    button->setMinimumHeight(icon_of_a_shortcut + 2 * space_between);
    row->addWidget(button, 1);
    bind_button(parts_.binding, outlet, button);
    parts_.guards.connect_button(button, nullptr, [&document = parts_.document, handler] {
        (document.*handler)();
    });
}

void Summary_Page::watch_controls() {
    const auto controls = parts_.document.summary_controls();
    for (Outlet* const control : controls)
        parts_.binding.bind(*control, this, [this, controls] {
            const bool any = std::any_of(controls.begin(), controls.end(),
                                         [](const Outlet* each) { return !each->hidden(); });
            setHidden(!any);
        });
}

}  // namespace velk
