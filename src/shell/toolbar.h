#pragma once

#include <QWidget>

#include "shell/widgets.h"

namespace velk {

/// The eight buttons of the sections. A click always calls the document's handler, which decides
/// whether anything happens.
class Toolbar : public QWidget {
    Q_OBJECT

  public:
    explicit Toolbar(const Window_Parts& parts);

  private:
    void mark_current();

    MainDocument& document_;
};

}  // namespace velk
