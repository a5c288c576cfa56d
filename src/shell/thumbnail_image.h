// What the toolkit's readers make of the phone's pictures. Any thread.
#pragma once

#include <QImage>
#include <QSize>
#include <string>

namespace velk {

/// The room of a picture in a list of pictures, in pixels of the window.
inline constexpr QSize thumbnail_size{160, 120};

/// The name ends as those of files do for which there is a reader on this system.
bool has_reader(const std::string& path);

/// The picture in the file, upright and small, as the content of a file of its own; empty when no
/// reader can make anything of it.
std::string small_picture(const std::string& file);

/// That content as an image for a screen with so many device pixels per pixel; none for an empty
/// one.
QImage thumbnail(const std::string& content, qreal ratio);

}  // namespace velk
