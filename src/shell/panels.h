// Every box that stands before the window and waits for a person.
#pragma once

#include <functional>

#include "ui/desktop.h"

class QWidget;

namespace velk {

/// Opens the alert over the window (or alone) and returns at once. `answered` gets the index of
/// the pressed button; it is dropped uncalled when the box is closed by close_alert_boxes().
void open_alert_box(QWidget* window, const Alert& alert, std::function<void(int)> answered);

/// Destroys every open alert.
void close_alert_boxes();

}  // namespace velk
