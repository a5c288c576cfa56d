#include "demo_phone/phone_log.h"

#include <algorithm>
#include <utility>

namespace velk {

namespace {

constexpr std::size_t kept_lines = 500;
constexpr std::size_t kept_length = 300;  // of each of them; the file has them whole

bool is_control(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

bool is_ascii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

}  // namespace

bool Phone_Log::open(const std::string& file) {
    file_.reset(std::fopen(file.c_str(), "we"));
    return file_ != nullptr;
}

void Phone_Log::line(std::string_view kind, std::string_view text) {
    std::string line(kind);
    line += ' ';
    for (const char character : text) line += is_control(character) ? '.' : character;
    write(std::move(line));
}

void Phone_Log::request(std::string_view bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string numbers = "request";
    std::string characters;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        numbers += {' ', digits[value >> 4], digits[value & 15]};
        characters += is_control(byte) || !is_ascii(byte) ? '.' : byte;
    }
    write(numbers + "  " + characters);
}

std::string Phone_Log::recent() const {
    std::string text;
    for (const std::string& line : recent_) text += line + "\n";
    return text;
}

void Phone_Log::write(std::string text) {
    if (file_) {
        std::fprintf(file_.get(), "%s\n", text.c_str());
        std::fflush(file_.get());
    }
    text.resize(std::min(text.size(), kept_length));
    recent_.push_back(std::move(text));
    if (recent_.size() > kept_lines) recent_.pop_front();
}

}  // namespace velk
