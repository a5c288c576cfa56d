#pragma once

#include <QFrame>

#include "shell/binding.h"
#include "ui/section.h"

namespace velk {

/// Shows the selected row in full: whom or what it is about, when, and its text, which can be
/// scrolled, and selected to be copied.
class Detail_Pane : public QFrame {
    Q_OBJECT

  public:
    /// `detail` has a text, and its labels outlive the pane.
    Detail_Pane(const Detail& detail, Binding& binding, QWidget* parent = nullptr);
};

}  // namespace velk
