#include "demo_phone/demo_files.h"

#include <algorithm>

#include "demo_phone/bytes.h"
#include "demo_phone/demo_checksums.h"

namespace velk {

namespace {

struct Colour {
    unsigned red, green, blue;
};

Colour mix(Colour one, Colour other, std::size_t part, std::size_t whole) {
    const auto blend = [&](unsigned from, unsigned to) {
        return static_cast<unsigned>((from * (whole - part) + to * part) / whole);
    };
    return {blend(one.red, other.red), blend(one.green, other.green), blend(one.blue, other.blue)};
}

Colour colour_of(unsigned seed) {
    return {40 + seed * 67 % 200, 60 + seed * 41 % 180, 50 + seed * 97 % 190};
}

/// One pixel of a landscape: a sky that fades, a sun, and hills like teeth of a saw.
Colour landscape(std::size_t x, std::size_t y, std::size_t width, std::size_t height,
                 unsigned seed) {
    const std::size_t wave = (x * 5 / 2 + std::size_t{seed} * 13) % (width + 1);
    const std::size_t hill = height / 2 + std::min(wave, width - wave) * height / (width * 2);
    if (y > height + height / 4 - hill) return mix(colour_of(seed + 2), {20, 50, 30}, y, height);
    const auto sun_x = static_cast<long>(width * (seed % 5 + 1) / 6);
    const auto across = static_cast<long>(x) - sun_x;
    const auto down = static_cast<long>(y) - static_cast<long>(height / 4);
    const auto radius = static_cast<long>(height / 9 + 1);
    if (across * across + down * down < radius * radius) return {255, 244, 200};
    return mix(colour_of(seed), {235, 235, 245}, y, height);
}

std::string png_chunk(std::string_view letters, std::string_view data) {
    const std::string content = std::string(letters).append(data);
    std::string out;
    append_big(out, data.size());
    out += content;
    append_big(out, crc32_of(content));
    return out;
}

/// A zlib stream whose blocks are stored as they are.
std::string stored_zlib(std::string_view data) {
    constexpr std::size_t largest_block = 65535;
    std::string out = "\x78\x01";
    for (std::size_t i = 0; i < data.size(); i += largest_block) {
        const std::string_view block = data.substr(i, largest_block);
        out.push_back(i + largest_block >= data.size() ? '\1' : '\0');
        append_little(out, block.size(), 2);
        append_little(out, ~block.size(), 2);
        out += block;
    }
    append_big(out, adler32_of(data));
    return out;
}

/// A chunk of the formats that begin with "RIFF".
std::string riff_chunk(std::string_view letters, std::string_view data) {
    std::string out(letters);
    append_little(out, data.size());
    out += data;
    if (data.size() % 2 == 1) out.push_back('\0');
    return out;
}

std::string riff_list(std::string_view letters, std::string_view kind, std::string_view data) {
    return riff_chunk(letters, std::string(kind).append(data));
}

std::string little_numbers(std::initializer_list<std::uint32_t> numbers) {
    std::string out;
    for (const std::uint32_t number : numbers) append_little(out, number);
    return out;
}

/// A picture as films hold it: bottom row first, blue before red.
std::string film_frame(std::size_t width, std::size_t height, unsigned seed) {
    std::string pixels;
    pixels.reserve(width * height * 3);
    for (std::size_t y = height; y-- > 0;) {
        for (std::size_t x = 0; x < width; ++x) {
            const Colour colour = landscape(x, y, width, height, seed);
            append_little(pixels, colour.blue, 1);
            append_little(pixels, colour.green, 1);
            append_little(pixels, colour.red, 1);
        }
    }
    return pixels;
}

}  // namespace

std::string demo_picture(std::size_t width, std::size_t height, unsigned seed) {
    std::string rows;
    rows.reserve((width * 3 + 1) * height);
    for (std::size_t y = 0; y < height; ++y) {
        rows.push_back('\0');  // the row is not filtered
        for (std::size_t x = 0; x < width; ++x) {
            const Colour colour = landscape(x, y, width, height, seed);
            append_big(rows, colour.red, 1);
            append_big(rows, colour.green, 1);
            append_big(rows, colour.blue, 1);
        }
    }
    std::string header;
    append_big(header, width);
    append_big(header, height);
    header.append({8, 2, 0, 0, 0});  // 8 bits of red, green and blue
    return "\x89PNG\r\n\x1A\n" + png_chunk("IHDR", header) + png_chunk("IDAT", stored_zlib(rows)) +
           png_chunk("IEND", "");
}

std::string demo_sound(std::size_t seconds, unsigned seed) {
    constexpr std::uint32_t rate = 1000;  // low, so that minutes stay small
    constexpr unsigned notes[] = {110, 131, 147, 165, 196, 220, 262, 294};
    constexpr std::size_t bar_seconds = 8;
    std::string bar;
    for (std::size_t i = 0; i < bar_seconds * rate; ++i) {
        const std::size_t beat = i / (rate / 2);
        const unsigned note = notes[(beat * 3 + beat * beat * seed + seed) % std::size(notes)];
        const std::size_t phase = i * note * 256 / rate % 256;
        const std::size_t loudness = 96 - i % (rate / 2) * 96 / (rate / 2);
        const std::size_t height = phase < 128 ? phase : 255 - phase;  // 0 to 127
        bar.push_back(static_cast<char>(128 - loudness / 2 + height * loudness / 127));
    }
    std::string samples;
    while (samples.size() < seconds * rate) samples += bar;
    samples.resize(seconds * rate);
    std::string format;
    append_little(format, 1, 2);  // uncompressed
    append_little(format, 1, 2);  // one channel
    format += little_numbers({rate, rate});
    append_little(format, 1, 2);
    append_little(format, 8, 2);
    return riff_list("RIFF", "WAVE", riff_chunk("fmt ", format) + riff_chunk("data", samples));
}

std::string demo_film(std::size_t seconds, unsigned seed) {
    constexpr std::uint32_t width = 48;
    constexpr std::uint32_t height = 36;
    constexpr std::uint32_t frame_size = width * height * 3;
    const auto frames = static_cast<std::uint32_t>(seconds);
    const std::string main_header =
        riff_chunk("avih", little_numbers({1000000, frame_size, 0, 0, frames, 0, 1, frame_size,
                                           width, height, 0, 0, 0, 0}));
    std::string stream = "vidsDIB ";
    stream += little_numbers({0, 0, 0, 1, 1, 0, frames, frame_size, 0, 0, 0, width | height << 16});
    std::string format = little_numbers({40, width, height});
    append_little(format, 1, 2);
    append_little(format, 24, 2);
    format += little_numbers({0, frame_size, 0, 0, 0, 0});
    const std::string headers =
        main_header +
        riff_list("LIST", "strl", riff_chunk("strh", stream) + riff_chunk("strf", format));
    std::string movie;
    for (std::uint32_t i = 0; i < frames; ++i)
        movie += riff_chunk("00db", film_frame(width, height, seed + i));
    return riff_list("RIFF", "AVI ",
                     riff_list("LIST", "hdrl", headers) + riff_list("LIST", "movi", movie));
}

}  // namespace velk
