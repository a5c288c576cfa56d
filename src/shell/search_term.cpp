#include "shell/search_term.h"

#include <QChar>
#include <QList>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "base/text.h"

namespace velk {

namespace {

using Byte = unsigned char;

/// A letter without case and accents, in UTF-8. Copied whole, which is faster than what is of use.
struct Bare {
    std::array<char, 7> bytes;
    Byte size;
};

constexpr char32_t end_of_unicode = 0x110000;
constexpr char32_t letters_of_a_page = 256;

QString without_accents(char32_t letter) {
    QString bare;
    const QString parts = QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_KD);
    for (const char32_t part : parts.toUcs4()) {
        const QChar::Category category = QChar::category(part);
        if (category != QChar::Mark_NonSpacing && category != QChar::Other_Format)
            bare += QString::fromUcs4(&part, 1);
    }
    return bare;
}

// The few letters that stand for whole words are not taken apart.
Bare bare_letter(char32_t letter) {
    Bare bare{};
    QByteArray text = without_accents(letter).toCaseFolded().toUtf8();
    if (text.size() > static_cast<qsizetype>(bare.bytes.size()))
        text = QString::fromUcs4(&letter, 1).toUtf8();
    std::copy(text.begin(), text.end(), bare.bytes.begin());
    bare.size = static_cast<Byte>(text.size());
    return bare;
}

/// The same out of a book that is written page by page as letters are met: a search through many
/// thousand rows meets the same few letters again and again. User-interface thread.
const Bare& bare(char32_t letter) {
    using Page = std::array<Bare, letters_of_a_page>;
    static std::array<std::unique_ptr<Page>, end_of_unicode / letters_of_a_page> book;
    std::unique_ptr<Page>& page = book[letter / letters_of_a_page];
    if (!page) {
        page = std::make_unique<Page>();
        char32_t next = letter - letter % letters_of_a_page;
        for (Bare& each : *page) each = bare_letter(next++);
    }
    return (*page)[letter % letters_of_a_page];
}

/// Most texts are ASCII: false when this one is not, and `folded` is of no use then.
bool fold_ascii(std::string_view text, std::string& folded) {
    folded.resize(text.size());
    char* const to = folded.data();
    Byte all_bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<Byte>(text[i]);
        const bool is_capital = static_cast<Byte>(byte - 'A') < 26;
        to[i] = static_cast<char>(byte | (is_capital ? 0x20 : 0));
        all_bits |= byte;
    }
    return all_bits < 0x80;
}

void fold_letters(std::string_view text, std::string& folded) {
    folded.resize((text.size() + 1) * sizeof(Bare));
    char* to = folded.data();
    while (!text.empty()) {
        const Bare& letter = bare(take_character(text));
        std::memcpy(to, &letter, sizeof letter);
        to += letter.size;
    }
    folded.resize(static_cast<std::size_t>(to - folded.data()));
}

}  // namespace

Search_Term::Search_Term(const QString& typed) {
    const std::string text = typed.trimmed().toStdString();
    if (!fold_ascii(text, folded_)) fold_letters(text, folded_);
    is_ascii_ = std::all_of(folded_.begin(), folded_.end(),
                            [](char each) { return static_cast<Byte>(each) < 0x80; });
}

bool Search_Term::is_in(std::string_view text) const {
    static std::string folded;  // keeps its room from one call to the next
    if (!fold_ascii(text, folded))
        fold_letters(text, folded);
    else if (!is_ascii_)
        return false;
    return memmem(folded.data(), folded.size(), folded_.data(), folded_.size()) != nullptr;
}

bool Search_Term::narrows(const Search_Term& other) const {
    return folded_.find(other.folded_) != std::string::npos;
}

}  // namespace velk
