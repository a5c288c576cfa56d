#pragma once

#include <QWidget>

namespace velk {

/// Shows one of the program's pictures, as large as fits. A screen reader passes it by: what it
/// shows is always said in words beside it.
class Picture_View : public QWidget {
    Q_OBJECT

  public:
    explicit Picture_View(QSize size, QWidget* parent = nullptr);

    /// By its file's name; nothing is drawn for a name without a picture.
    void show_picture(const QString& name);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString name_;
};

/// Shows an icon's drawing in the colour of texts.
class Icon_View : public QWidget {
    Q_OBJECT

  public:
    Icon_View(QString name, int size, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString name_;
};

}  // namespace velk
