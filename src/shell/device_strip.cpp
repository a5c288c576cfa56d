#include "shell/device_strip.h"

#include <QHBoxLayout>
#include <QLabel>

#include "session/main_document.h"
#include "shell/level_gauge.h"
#include "shell/look.h"
#include "shell/text_label.h"

namespace velk {

namespace {

// The most room of each value, in average characters.
constexpr int room_of_name = 26;
constexpr int room_of_version = 10;
constexpr int room_of_serial = 20;
constexpr int room_of_size = 12;
constexpr int room_of_connection = 20;

QVBoxLayout* column() {
    auto* const lines = new QVBoxLayout;
    set_tight(lines, 1);
    return lines;
}

}  // namespace

Device_Strip::Device_Strip(const Window_Parts& parts) : row_(new QHBoxLayout(this)) {
    setObjectName(QStringLiteral("device_strip"));
    setAttribute(Qt::WA_StyledBackground);
    row_->setContentsMargins(space_between, small_space, space_between, small_space);
    row_->setSpacing(space_between);
    MainDocument& document = parts.document;
    add_value(parts, "Phone", document.m_LB_MobileName, room_of_name);
    add_value(parts, "Android", document.m_LB_AndroidVersion, room_of_version);
    add_connection(parts);
    add_value(parts, "Serial number", document.m_LB_SerialNumber, room_of_serial);
    row_->addStretch(1);
    add_battery(parts);
    add_value(parts, "Phone memory", document.m_LB_Size_PhoneTotal, room_of_size);
    add_value(parts, "Storage", document.m_LB_Size_StorageTotal, room_of_size);
}

void Device_Strip::add_value(const Window_Parts& parts, const char* caption, Label& value,
                             int room) {
    auto* const lines = column();
    auto* const label = new Text_Label(this);
    label->set_room(6, room);
    label->set_dash_for_nothing();
    lines->addWidget(quiet_caption(QString::fromLatin1(caption)));
    lines->addWidget(label);
    bind_label(parts.binding, value, label);
    row_->addLayout(lines);
}

void Device_Strip::add_connection(const Window_Parts& parts) {
    auto* const lines = column();
    auto* const connected = new Text_Label(this);
    auto* const cable = new Text_Label(this);
    connected->set_room(10, room_of_connection);
    connected->set_dash_for_nothing();
    connected->setFont(scaled_font(1, true));
    cable->set_room(10, room_of_connection);
    cable->setFont(scaled_font(0.85));
    make_quiet(cable);
    lines->addWidget(connected);
    lines->addWidget(cable);
    bind_label(parts.binding, parts.document.m_LB_Connected, connected);
    announce(parts.binding, parts.document.m_LB_Connected, connected);
    bind_label(parts.binding, parts.document.m_LB_USBConnect, cable);
    row_->addLayout(lines);
}

void Device_Strip::add_battery(const Window_Parts& parts) {
    Level_Indicator& level = parts.document.m_Progress_Battery;
    auto* const lines = column();
    auto* const values = new QHBoxLayout;
    set_tight(values, 6);
    auto* const gauge = new Level_Gauge(Level_Gauge::Shape::battery, level.maximum(), this);
    gauge->setAccessibleName(QStringLiteral("Battery"));
    auto* const label = new Text_Label(this);
    label->set_room(4, 6);
    label->set_dash_for_nothing();
    values->addWidget(gauge);
    values->addWidget(label);
    lines->addWidget(quiet_caption(QStringLiteral("Battery")));
    lines->addLayout(values);
    bind_gauge(parts.binding, level, gauge);
    bind_label(parts.binding, parts.document.m_LB_Battery, label);
    row_->addLayout(lines);
}

}  // namespace velk
