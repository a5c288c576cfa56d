// The phone, the computer, and what runs between them.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "session/views.h"
#include "shell/look.h"
#include "shell/pages.h"
#include "shell/picture_view.h"

namespace velk {

namespace {

constexpr QSize phone_size{72, 120};
constexpr QSize computer_size{150, 120};
constexpr QSize between_size{120, 36};
constexpr QSize point_size{24, 24};

Picture_View* drawing(const QString& name, QSize size) {
    auto* const view = new Picture_View(size);
    view->show_picture(name);
    return view;
}

/// The cable and the points have one place: where one is, the other is not.
QWidget* between(View_Start& view, const Window_Parts& parts) {
    auto* const place = new QWidget;
    place->setFixedSize(between_size);
    auto* const layers = new QGridLayout(place);
    layers->setContentsMargins(0, 0, 0, 0);
    auto* const line = new Picture_View(between_size, place);
    layers->addWidget(line, 0, 0, 1, 4, Qt::AlignCenter);
    bind_image(parts.binding, view.m_Image_USB_Line, line);
    int column = 0;
    for (Image* const point : {&view.m_Image_loading_1, &view.m_Image_loading_2,
                               &view.m_Image_loading_3, &view.m_Image_loading_4}) {
        auto* const picture = new Picture_View(point_size, place);
        layers->addWidget(picture, 0, column++, Qt::AlignCenter);
        bind_image(parts.binding, *point, picture);
    }
    return place;
}

QWidget* scene(View_Start& view, const Window_Parts& parts) {
    auto* const whole = new QWidget;
    auto* const row = new QHBoxLayout(whole);
    set_tight(row, space_between);
    row->addWidget(drawing(QStringLiteral("phone"), phone_size));
    row->addWidget(between(view, parts));
    row->addWidget(drawing(QStringLiteral("computer"), computer_size));
    return whole;
}

QLabel* message(Label& outlet, const Window_Parts& parts, QWidget* page) {
    auto* const label = new QLabel(page);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(scaled_font(1.25));
    bind_text(parts.binding, outlet, label);
    return label;
}

}  // namespace

QWidget* start_page(View_Start& view, const Window_Parts& parts) {
    auto* const page = new QWidget;
    auto* const refresh = refresh_button(parts, [&view] { view.OnBT_Refresh(); });
    refresh->setObjectName(QStringLiteral("OnBT_Refresh"));
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(large_space, large_space, large_space, large_space);
    column->setSpacing(large_space);
    column->addStretch(2);
    column->addWidget(scene(view, parts), 0, Qt::AlignCenter);
    column->addWidget(message(view.m_LB_Msg_ConnectPhone, parts, page));
    column->addWidget(message(view.m_LB_ConnectingYourPhone, parts, page));
    column->addWidget(refresh, 0, Qt::AlignCenter);
    auto* const below = new QHBoxLayout;
    below->addStretch(1);
    below->addWidget(finding_of(view, parts), 6);
    below->addStretch(1);
    column->addLayout(below);
    column->addStretch(3);
    return page;
}

}  // namespace velk
