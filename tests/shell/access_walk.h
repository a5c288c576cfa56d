// What keeps a person from a window who cannot see it well, or has no mouse. Each function gives
// its findings in words; none when all is well.
#pragma once

#include <QStringList>

class QWidget;

namespace velk {

/// What a screen reader has no name for, or no title for in a table.
QStringList nameless(QWidget& window);
/// What a mouse can press or write into, and no key leads to.
QStringList without_keys(QWidget& window);
/// Steps of the Tab key that go against the order of reading.
QStringList jumps_of_tab(QWidget& window);
/// Keys that two things wait for at the same time.
QStringList shared_keys(QWidget& window);
/// Texts of what is enabled that do not stand out from their ground.
QStringList pale_texts(QWidget& window);

/// What is not as large as its text needs it to be. Labels that shorten their text do so on
/// purpose.
QStringList clipped_texts(QWidget& window);

/// The controls that Tab leads through, from the first to where it starts again.
QList<QWidget*> tab_path(QWidget& window);

}  // namespace velk
