#include "shell/text_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace velk {

namespace {

constexpr int most_letters_in_a_line = 80;
constexpr int most_letters_of_a_tool_tip = 2000;  // which a screen has room for

}  // namespace

QString one_line(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    return text;
}

QString plain_tool_tip(const QString& text) {
    if (text.size() <= most_letters_in_a_line && !Qt::mightBeRichText(text)) return text;
    const bool too_long = text.size() > most_letters_of_a_tool_tip;
    const QString told = too_long ? text.left(most_letters_of_a_tool_tip) + u'…' : text;
    // Only what is marked up is broken into lines.
    return QStringLiteral("<p style=\"white-space: pre-wrap\">") + told.toHtmlEscaped() +
           QStringLiteral("</p>");
}

Text_Label::Text_Label(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Text_Label::show_text(const QString& text, const QString& tool_tip) {
    setToolTip(plain_tool_tip(tool_tip));
    if (text != this->text()) setText(text);
}

void Text_Label::set_room(int least, int most) {
    least_ = least;
    most_ = most;
    updateGeometry();
}

QString Text_Label::drawn_text() const {
    return dash_for_nothing_ && text().isEmpty() ? QStringLiteral("–") : one_line(text());
}

int Text_Label::text_width() const {
    return fontMetrics().horizontalAdvance(drawn_text()) + 2;
}

int Text_Label::width_of(int characters) const {
    return fontMetrics().averageCharWidth() * characters;
}

QSize Text_Label::sizeHint() const {
    const int most = most_ > 0 ? width_of(most_) : text_width();
    return {std::min(text_width(), most), fontMetrics().height()};
}

QSize Text_Label::minimumSizeHint() const {
    return {std::min(width_of(least_), text_width()), fontMetrics().height()};
}

void Text_Label::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString whole = drawn_text();
    const bool right_to_left = !sentence_ && whole.isRightToLeft();
    painter.setLayoutDirection(right_to_left ? Qt::RightToLeft : Qt::LeftToRight);
    painter.setPen(palette().color(foregroundRole()));
    const QString shown = fontMetrics().elidedText(whole, Qt::ElideRight, width());
    painter.drawText(rect(), static_cast<int>(alignment() | Qt::AlignAbsolute) | Qt::TextSingleLine,
                     shown);
}

bool Text_Label::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    const bool short_of_room = fontMetrics().horizontalAdvance(one_line(text())) > width();
    const QString tip = toolTip().isEmpty() && short_of_room ? plain_tool_tip(text()) : toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

}  // namespace velk
