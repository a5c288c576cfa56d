#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <string>

#include "demo_phone/demo_data.h"
#include "demo_phone/demo_words.h"

namespace velk {

namespace {

/// Every twentieth contact is a special one, until those are used up.
constexpr std::size_t special_every = 20;

std::string name_in(const Demo_Language& language, std::size_t number) {
    const std::size_t givens = language.given.size();
    const std::string given(pick(language.given, number));
    // Behind each round of given names the family names move on, so that pairs repeat late.
    std::string family(pick(language.family, number + number / givens));
    const std::size_t round = number / (givens * language.family.size());
    if (round > 0) family.append(" ").append(std::to_string(round + 1));
    const std::string between(language.between);
    return language.family_first ? family + between + given : given + between + family;
}

std::string contact_name(std::size_t index) {
    const auto languages = demo_languages();
    const std::size_t special = index / special_every;
    if (index % special_every == special_every / 2 && special < demo_special_names().size())
        return std::string(demo_special_names()[special]);
    return name_in(languages[index % languages.size()], index / languages.size());
}

std::string lengthened(std::string name, std::size_t index) {
    constexpr std::size_t long_enough = 100;
    for (std::size_t i = 1; name.size() < long_enough; ++i)
        name += " · " + contact_name(index * 7 + i * 5);
    return name;
}

std::string contact_number(std::size_t index) {
    const auto languages = demo_languages();
    char digits[16];
    std::snprintf(digits, sizeof digits, "%05zu", (index * 7919 + 12345) % 100000);
    return std::string(languages[index % languages.size()].country) + digits;
}

/// Marks that are as wide as a letter bring their own blank.
bool ends_in_wide_mark(std::string_view text) {
    for (const std::string_view mark : {"，", "。", "！"})
        if (text.ends_with(mark)) return true;
    return false;
}

void append_sentence(std::string& text, std::string_view sentence) {
    if (!text.empty() && !sentence.empty() && !ends_in_wide_mark(text)) text += ' ';
    text += sentence;
}

std::string message_text(const Demo_Language& language, std::size_t number) {
    std::string text;
    if (number % 3 != 0) append_sentence(text, pick(language.greetings, number / 2));
    append_sentence(text, pick(language.sentences, number));
    if (number % 4 == 1) append_sentence(text, pick(language.closings, number / 3));
    return text;
}

/// Seven messages a day while people are awake; the last of all, with none `left` behind it, came
/// on a spring evening.
std::string message_date(std::size_t left) {
    constexpr std::time_t last_evening = 1716242100;  // 20 May 2024, 21:55
    constexpr std::time_t minutes_before[] = {0, 130, 285, 445, 590, 735, 845};
    constexpr std::size_t a_day = std::size(minutes_before);
    const std::time_t moment = last_evening - static_cast<std::time_t>(left / a_day) * 86400 -
                               minutes_before[left % a_day] * 60 -
                               static_cast<std::time_t>(left * left % 3001);
    std::tm parts{};
    gmtime_r(&moment, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
    return text;
}

/// Enough conversations that none of them reaches the 256 messages that can be told apart in it.
std::size_t conversations_for(std::size_t messages) {
    constexpr std::size_t at_least = 45;
    constexpr std::size_t at_most = 255;
    return std::clamp(messages / 200 + 1, at_least, at_most);
}

void fill_messages(Phone_Store& store, std::size_t count) {
    const auto languages = demo_languages();
    const std::size_t conversations = conversations_for(count);
    for (std::size_t i = 0; i < count; ++i) {
        // Neighbours in time belong together; the conversations take turns in runs of three.
        const std::size_t partner = (i / 3 * 11 + i % 2 * 7) % conversations;
        const Demo_Language& language = languages[partner % languages.size()];
        const bool received = i % 5 < 3;
        const std::size_t left = count - 1 - i;
        Phone_Message message;
        message.tel = contact_number(partner);
        message.text = message_text(language, i / 2 + partner * 3);
        message.date = message_date(left);
        message.type = received ? 1 : 2;
        message.read = !received || left > 12;
        store.add_message(std::move(message));
    }
}

/// What separates or ends something in one of the wires, in files and in scripts of writing.
void add_odd_contacts(Phone_Store& store) {
    using namespace std::string_literals;
    const std::string names[] = {"star*name",
                                 "pipe|name",
                                 "star*pipe|*|name|",
                                 "];",
                                 "','",
                                 "\"double\" and 'single'",
                                 "back\\slash\\n",
                                 "two\nlines\r\nand a\ttab",
                                 "{\"end\":1}",
                                 "מִי־זֶה 123 من",
                                 "\u202Eright to left\u202C",
                                 "👩‍🚀 😀 e\u0301",
                                 "line\u2028separator",
                                 " blanks ",
                                 "nul\0byte"s};
    for (std::size_t i = 0; i < std::size(names); ++i)
        store.add_contact(names[i], "+99900" + std::to_string(100 + i));
    store.add_contact("number with separators", "+38*10|#;,");
    store.add_contact("", "+99900200");
}

}  // namespace

void fill_people(Phone_Store& store, const Demo_Amounts& amounts) {
    for (std::size_t i = 0; i < amounts.contacts; ++i) {
        const std::string name = contact_name(i);
        store.add_contact(amounts.long_names ? lengthened(name, i) : name, contact_number(i));
    }
    if (amounts.odd_contacts) add_odd_contacts(store);
    fill_messages(store, amounts.messages);
}

}  // namespace velk
