#include "shell/velk_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "session/main_document.h"
#include "shell/busy_spinner.h"
#include "shell/content_stack.h"
#include "shell/device_strip.h"
#include "shell/main_menu.h"
#include "shell/qt_desktop.h"
#include "shell/summary_page.h"
#include "shell/text_label.h"
#include "shell/toolbar.h"

namespace velk {

namespace {

constexpr QSize least_size{860, 560};
constexpr QSize first_size{1180, 760};
constexpr QSize room_of_the_frame{16, 48};  // what a desktop may draw around the window

}  // namespace

Velk_Window::Velk_Window(MainDocument& document, Qt_Desktop& desktop)
    : document_(document), desktop_(desktop) {
    setObjectName(QStringLiteral("Velk_Window"));
    setMinimumSize(least_size);
    resize(first_size.boundedTo(screen()->availableSize() - room_of_the_frame));
    guards_.on_look([this] { emit may_have_changed(); });
    build();
    binding_.bind(document.window_title, this,
                  [this] { setWindowTitle(shown(document_.window_title.text())); });
    desktop.set_window(this);
    connect(&desktop, &Qt_Desktop::turn_ended, &guards_, &Guards::look_again);
    content_->on_new_page([this] { set_tab_order(); });
    document.windowControllerDidLoadNib();
    bring_up_to_date();
    set_tab_order();
}

void Velk_Window::bring_up_to_date() {
    binding_.flush();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void Velk_Window::build() {
    const Window_Parts parts{document_, binding_, guards_};
    content_ = new Content_Stack(parts);
    auto* const toolbar = new Toolbar(parts);
    auto* const strip = new Device_Strip(parts);
    auto* const summary = new Summary_Page(parts);
    auto* const main_area = new QHBoxLayout;
    set_tight(main_area, 0);
    main_area->addWidget(content_, 1);
    main_area->addWidget(summary, 1);
    // Behind the content: when another page comes, the menu looks at what is there already.
    menu_ = new MainMenu_Main(parts, *content_, this);
    auto* const column = new QVBoxLayout(this);
    set_tight(column, 0);
    column->setMenuBar(menu_);
    column->addWidget(toolbar);
    column->addWidget(strip);
    column->addWidget(warning_line(document_.m_LB_Port));
    column->addWidget(warning_line(document_.m_LB_Agent));
    column->addLayout(main_area, 1);
    column->addWidget(status_strip());
}

QWidget* Velk_Window::warning_line(Label& trouble) {
    auto* const line = new QLabel(this);
    line->setWordWrap(true);
    line->setAttribute(Qt::WA_StyledBackground);
    line->setProperty("warning", true);
    line->setIndent(0);
    line->setAccessibleDescription(QStringLiteral("Warning"));
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bind_text(binding_, trouble, line);
    binding_.bind(trouble, line, [&trouble, line] { line->setHidden(trouble.text().empty()); });
    announce(binding_, trouble, line);
    return line;
}

QWidget* Velk_Window::status_strip() {
    auto* const strip = new QWidget(this);
    strip->setObjectName(QStringLiteral("status_strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    auto* const row = new QHBoxLayout(strip);
    row->setContentsMargins(space_between, 6, space_between, 6);
    row->setSpacing(small_space);
    Text_Label* const status = status_line(binding_, document_.m_LB_ps, strip);
    auto* const spinner = new Busy_Spinner(strip);
    auto* const busy = new Text_Label(strip);
    busy->set_room(0, 48);
    make_quiet(busy);
    row->addWidget(status, 1);
    row->addWidget(spinner);
    row->addWidget(busy);
    strip->setMinimumHeight(30);
    Label& waits = document_.busy.m_LB_Busy;
    bind_label(binding_, waits, busy);
    announce(binding_, waits, busy);
    binding_.bind(waits, spinner, [&waits, spinner] { spinner->set_busy(!waits.text().empty()); });
    return strip;
}

void Velk_Window::set_tab_order() {
    QWidget* before = nullptr;
    const QWidget* const parts[] = {findChild<Toolbar*>(), content_->currentWidget(),
                                    findChild<Summary_Page*>()};
    for (const QWidget* const part : parts) {
        if (!part) continue;
        for (QWidget* const control : part->findChildren<QWidget*>()) {
            if (!(control->focusPolicy() & Qt::TabFocus)) continue;
            if (before) setTabOrder(before, control);
            before = control;
        }
    }
}

void Velk_Window::bring_to_front() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Velk_Window::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || minimised_ == isMinimized()) return;
    minimised_ = isMinimized();
    minimised_ ? emit was_minimised() : emit was_restored();
}

void Velk_Window::closeEvent(QCloseEvent* event) {
    event->accept();
    if (std::exchange(closed_, true)) return;
    hide();
    desktop_.drop_boxes();
    // The screen learns that the window is gone before the document waits for the phone.
    QTimer::singleShot(0, this, [this] { document_.windowWillClose(); });
}

}  // namespace velk
