#pragma once

#include <QLabel>

namespace velk {

/// A line of plain text from anywhere: what has no room ends in an ellipsis and is told in full by
/// the tool tip, and a right-to-left text is set from its own side. Its accessible name is the
/// whole text.
class Text_Label : public QLabel {
    Q_OBJECT

  public:
    explicit Text_Label(QWidget* parent = nullptr);

    /// The text, and a tool tip of its own that stands in for that of a shortened text. No markup
    /// in either.
    void show_text(const QString& text, const QString& tool_tip = {});
    /// The room the label asks for at least and at most, in average characters; 0 for the most
    /// means as much as the text takes.
    void set_room(int least, int most);
    /// The text is a sentence of the program's own language, which runs from left to right
    /// whatever names stand in it.
    void set_sentence() { sentence_ = true; }
    /// Draws a dash while there is no text, so that a caption does not stand alone.
    void set_dash_for_nothing() { dash_for_nothing_ = true; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    QString drawn_text() const;
    int text_width() const;
    int width_of(int characters) const;

    int least_ = 4;
    int most_ = 0;
    bool sentence_ = false;
    bool dash_for_nothing_ = false;
};

/// The text with blanks in the places of line breaks, tabs and the like.
QString one_line(QString text);

/// `text` as a tool tip that is never taken for markup; a long one has several lines.
QString plain_tool_tip(const QString& text);

}  // namespace velk
