#pragma once

#include <QAbstractButton>
#include <QColor>

namespace velk {

/// A section's button on the toolbar: an icon over its caption, both in the caption's colour.
class Toolbar_Button : public QAbstractButton {
    Q_OBJECT

  public:
    Toolbar_Button(QString icon, QWidget* parent = nullptr);

    /// An invalid colour stands for the toolbar's own.
    void set_caption_colour(const QColor& colour);
    /// Its section is the one that is shown.
    void set_current(bool current);
    bool current() const { return current_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void paint_ground(QPainter& painter) const;

    QString icon_;
    QColor colour_;
    bool current_ = false;
    bool reached_by_key_ = false;  // the focus is worth a mark
};

}  // namespace velk
