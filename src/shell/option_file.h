// The configuration that comes with the program: an XML file whose elements are found by position.
#pragma once

#include <QString>
#include <map>
#include <string>

namespace velk {

using Settings = std::map<std::string, std::string>;

// Each adds what the file holds to the settings; what is missing there, or the whole file when it
// is no XML, adds nothing.

/// "preview:screen:x" and its kind: the attributes x, y, w and h of the first element in the first
/// child of the root's second child.
void read_layout(const QString& file, Settings& settings);
/// "url:help" and its kind: the texts in the root's first child.
void read_addresses(const QString& file, Settings& settings);

}  // namespace velk
