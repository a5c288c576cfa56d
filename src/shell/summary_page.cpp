#include "shell/summary_page.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
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
constexpr int room_of_a_size = 8;  // average characters

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
    const Storage storages[] = {{"Phone memory", "my_android", document.m_LB_Size_PhoneTotalFree,
                                 document.m_LB_Free_Phone_Caption, document.m_LB_Size_Phone_BK,
                                 document.m_LevelIndicator_Size_Phone},
                                {"Storage", "storage", document.m_LB_Size_StorageTotalFree,
                                 document.m_LB_Free_Storage_Caption, document.m_LB_Size_Storage_BK,
                                 document.m_LevelIndicator_Size_Storage}};
    for (const Storage& storage : storages) cards->addWidget(storage_card(storage), 1);
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
    name->set_dash_for_nothing();
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
    auto* const lines = new QVBoxLayout(card);
    lines->setContentsMargins(space_between, space_between, space_between, space_between);
    lines->setSpacing(small_space);
    auto* const top = new QHBoxLayout;
    set_tight(top, small_space);
    auto* const title = new QLabel(QString::fromLatin1(storage.title), card);
    make_quiet(title);
    top->addWidget(new Icon_View(QString::fromLatin1(storage.icon), icon_of_a_storage));
    top->addWidget(title, 1);
    lines->addLayout(top);
    lines->addLayout(free_space(storage, card));
    lines->addLayout(gauge_on_ground(storage, card));
    return card;
}

QLayout* Summary_Page::free_space(const Storage& storage, QWidget* card) {
    auto* const row = new QHBoxLayout;
    set_tight(row, small_space);
    auto* const free = new Text_Label(card);
    free->setFont(scaled_font(1.45, true));
    free->set_room(room_of_a_size, 0);
    free->set_dash_for_nothing();
    auto* const caption = new Text_Label(card);
    make_quiet(caption);
    row->addWidget(free);
    row->addWidget(caption, 1, Qt::AlignBottom);
    bind_label(parts_.binding, storage.free, free);
    bind_label(parts_.binding, storage.caption, caption);
    return row;
}

QLayout* Summary_Page::gauge_on_ground(const Storage& storage, QWidget* card) {
    auto* const layers = new QGridLayout;
    layers->setContentsMargins(0, 0, 0, 0);
    auto* const ground = new QLabel(card);
    ground->setProperty("gauge_ground", true);
    auto* const gauge = new Level_Gauge(Level_Gauge::Shape::bar, storage.gauge.maximum(), card);
    gauge->setAccessibleName(QString::fromLatin1(storage.title));
    layers->addWidget(ground, 0, 0);
    layers->addWidget(gauge, 0, 0);
    bind_text(parts_.binding, storage.ground, ground);
    ground->setFixedHeight(gauge->sizeHint().height());
    bind_gauge(parts_.binding, storage.gauge, gauge);
    return layers;
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
    auto* const button = new QToolButton(this);
    button->setIcon(themed_icon(QString::fromLatin1(icon), Ink::accent));
    button->setIconSize({icon_of_a_shortcut, icon_of_a_shortcut});
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row->addWidget(button, 1);
    bind_button(parts_.binding, outlet, button);
    parts_.guards.connect_button(button, nullptr,
                                 [&document = parts_.document, handler] { (document.*handler)(); });
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
