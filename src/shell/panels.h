// The boxes of the window system that stand before the window and wait for a person.
#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "ui/boxes.h"

namespace velk {

// Each opens its box and returns at once; `front` is what stands foremost, or nothing. A box that
// is closed deletes itself.

/// `answered` gets the index of the pressed button.
QDialog* open_alert_box(QWidget* front, const Alert& alert, std::function<void(int)> answered);

/// `chosen` gets the path, empty when the person cancelled. A name that exists already is not
/// asked about: the program does that, which knows the name that it will write. A sheet belongs to
/// `front` alone; another panel stands before the whole program.
QDialog* open_file_box(QWidget* front, const File_Panel& panel,
                       std::function<void(std::string)> chosen);

}  // namespace velk
