#pragma once

#include <QWidget>

#include "shell/widgets.h"

class QHBoxLayout;

namespace velk {

/// The slim line about the phone, on the window whatever it shows below.
class Device_Strip : public QWidget {
    Q_OBJECT

  public:
    explicit Device_Strip(const Window_Parts& parts);

  private:
    /// A small caption over a value.
    void add_value(const Window_Parts& parts, const char* caption, Label& value, int room);
    void add_connection(const Window_Parts& parts);
    void add_battery(const Window_Parts& parts);

    QHBoxLayout* row_;
};

}  // namespace velk
