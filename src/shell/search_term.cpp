#include "shell/search_term.h"

#include <QChar>
#include <QList>
#include <array>
#include <cstring>
#include <memory>

namespace velk {

namespace {

constexpr std::size_t letters_of_a_page = 256;
constexpr std::size_t pages = 0x110000 / letters_of_a_page;

/// The letter without case and accents, in UTF-8; nothing for what has no letter in it.
std::string bare_letter(char32_t letter) {
    QString bare;
    const QString parts = QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_KD);
    for (const char32_t part : parts.toUcs4()) {
        const QChar::Category category = QChar::category(part);
        if (category != QChar::Mark_NonSpacing && category != QChar::Other_Format)
            bare += QString::fromUcs4(&part, 1);
    }
    return bare.toCaseFolded().toStdString();
}

/// The same out of a book that is written page by page as letters are met: a search through many
/// thousand rows meets the same few letters again and again. User-interface thread.
const std::string& bare(char32_t letter) {
    using Page = std::array<std::string, letters_of_a_page>;
    static std::array<std::unique_ptr<Page>, pages> book;
    std::unique_ptr<Page>& page = book[letter / letters_of_a_page];
    if (!page) {
        page = std::make_unique<Page>();
        const auto first = static_cast<char32_t>(letter - letter % letters_of_a_page);
        for (std::size_t i = 0; i < letters_of_a_page; ++i)
            (*page)[i] = bare_letter(first + static_cast<char32_t>(i));
    }
    return (*page)[letter % letters_of_a_page];
}

/// Most texts are ASCII: false when this one is not, and `folded` is of no use then.
bool fold_ascii(std::string_view text, std::string& folded) {
    folded.resize(text.size());
    unsigned char all_bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool is_capital = static_cast<unsigned char>(byte - 'A') < 26;
        folded[i] = static_cast<char>(byte | (is_capital ? 0x20 : 0));
        all_bits |= byte;
    }
    return all_bits < 0x80;
}

void fold(std::string_view text, std::string& folded) {
    if (fold_ascii(text, folded)) return;
    folded.clear();
    const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (const char32_t letter : whole.toUcs4()) folded += bare(letter);
}

}  // namespace

Search_Term::Search_Term(const QString& typed) {
    fold(typed.trimmed().toStdString(), folded_);
}

bool Search_Term::is_in(std::string_view text) const {
    static std::string folded;  // keeps its room from one call to the next
    fold(text, folded);
    return memmem(folded.data(), folded.size(), folded_.data(), folded_.size()) != nullptr;
}

}  // namespace velk
