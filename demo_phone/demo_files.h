// Small files of their own that stand behind the media: valid, made by hand, the same every time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velk {

/// A picture of `width` x `height` pixels with a sky, hills and a sun; `seed` chooses the colours.
std::string demo_picture(std::size_t width, std::size_t height, unsigned seed);

/// Sound: a little tune of the given length, 8 bits, mono. `seed` chooses the notes.
std::string demo_sound(std::size_t seconds, unsigned seed);

/// A film of uncompressed pictures, one for each second.
std::string demo_film(std::size_t seconds, unsigned seed);

/// An electronic book of one chapter.
std::string demo_epub(std::string_view title, std::string_view text);

}  // namespace velk
