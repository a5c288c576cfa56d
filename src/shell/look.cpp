#include "shell/look.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QToolTip>
#include <cmath>
#include <utility>

#include "base/trace.h"
#include "shell/pictures.h"

static void make_resources_known() {
    Q_INIT_RESOURCE(velk);
}

namespace velk {

namespace {

constexpr double least_contrast = 4.5;  // what a text of normal size needs

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mix(const QColor& a, const QColor& b, double share_of_b) {
    const auto channel = [&](int x, int y) { return static_cast<int>(x + (y - x) * share_of_b); };
    return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

/// The colour itself, or as little further away from the ground as reading needs.
QColor readable(const QColor& colour, const QColor& ground) {
    const QColor far = luminance(ground) < 0.18 ? Qt::white : Qt::black;
    for (int step = 0; step <= 20; ++step) {
        const QColor tried = mix(colour, far, step * 0.05);
        if (contrast(tried, ground) >= least_contrast) return tried;
    }
    return far;
}

}  // namespace

double contrast(const QColor& text, const QColor& ground) {
    const double a = luminance(text) + 0.05;
    const double b = luminance(ground) + 0.05;
    return a > b ? a / b : b / a;
}

Look Look::of(const QPalette& palette) {
    Look look;
    look.window = palette.color(QPalette::Active, QPalette::Window);
    const bool dark = luminance(look.window) < 0.18;
    look.card = dark ? mix(look.window, Qt::white, 0.06) : palette.color(QPalette::Base);
    look.stripe = mix(look.card, look.window, dark ? 0.45 : 0.4);
    // The ground that text reads worst on of the three.
    const QColor ground = dark ? look.card : look.window;
    look.text = readable(palette.color(QPalette::Active, QPalette::WindowText), ground);
    look.muted = readable(mix(look.text, ground, 0.36), ground);
    look.disabled = mix(look.text, ground, 0.58);
    look.line = mix(look.text, ground, 0.86);
    look.edge = mix(look.text, ground, 0.72);
    look.accent = QColor(0x25, 0x59, 0xd6);
    look.accent_hover = QColor(0x1d, 0x49, 0xb4);
    look.on_accent = Qt::white;
    look.accent_text = readable(dark ? QColor(0x7d, 0xa9, 0xff) : look.accent, ground);
    look.warning = dark ? QColor(0x4a, 0x38, 0x10) : QColor(0xff, 0xf1, 0xc9);
    look.on_warning = dark ? QColor(0xff, 0xe3, 0xa3) : QColor(0x4d, 0x38, 0x00);
    look.pressed = mix(look.card, look.accent, 0.08);
    look.toolbar = dark ? mix(look.window, Qt::black, 0.45) : QColor(0x1e, 0x27, 0x36);
    look.toolbar_hover = mix(look.toolbar, Qt::white, 0.12);
    look.toolbar_text = QColor(0xee, 0xf2, 0xf8);
    return look;
}

Look Look::now() {
    return of(QGuiApplication::palette());
}

QString Look::fill_in(QString style_sheet) const {
    const std::pair<const char*, QColor> places[] = {
        {"window", window},
        {"card", card},
        {"stripe", stripe},
        {"text", text},
        {"muted", muted},
        {"disabled", disabled},
        {"line", line},
        {"edge", edge},
        {"accent", accent},
        {"pressed", pressed},
        {"on_accent", on_accent},
        {"accent_hover", accent_hover},
        {"toolbar", toolbar},
        {"accent_text", accent_text},
        {"warning", warning},
        {"on_warning", on_warning},
        {"toolbar_text", toolbar_text},
        {"toolbar_hover", toolbar_hover},
        {"toolbar_muted", mix(toolbar_text, toolbar, 0.5)}};
    for (const auto& [name, colour] : places)
        style_sheet.replace(QStringLiteral("@%1@").arg(name), colour.name());
    return style_sheet;
}

Look_Keeper::Look_Keeper() {
    make_resources_known();
    if (!can_read_drawings()) log_line("%s", no_drawings);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/velk.svg")));
    dress();
    qApp->installEventFilter(this);
}

// What stands in an empty field is no business of the style sheet.
void Look_Keeper::colour_placeholders() {
    QPalette palette = QGuiApplication::palette();
    const QColor muted = Look::of(palette).muted;
    if (palette.color(QPalette::PlaceholderText) == muted) return;
    palette.setColor(QPalette::PlaceholderText, muted);
    QApplication::setPalette(palette);
}

void Look_Keeper::dress() {
    colour_placeholders();
    QFile file(QStringLiteral(":/velk.qss"));
    if (!file.open(QIODevice::ReadOnly)) return;
    const QString sheet = Look::now().fill_in(QString::fromUtf8(file.readAll()));
    if (sheet != qApp->styleSheet()) qApp->setStyleSheet(sheet);
}

bool Look_Keeper::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) dress();
    return false;
}

QFont scaled_font(double factor, bool bold) {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

}  // namespace velk
