#include "export/property_list.h"

#include <plist/plist.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <map>
#include <memory>

#include "base/text.h"

namespace velk {

namespace {

constexpr const char* count_key = "record_count";
constexpr std::uint32_t texts_of_a_record = 3;
constexpr int deepest = 100;  // a list of ours is 2 deep

struct Free {
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, Free>;

/// Memory that the library has handed over. It comes from malloc; the library's own function for
/// freeing it is called differently in 2.2 and in 2.6.
template <class Type>
using Handed_Over = std::unique_ptr<Type, decltype(&std::free)>;

constexpr char32_t replacement = 0xFFFD;

bool fits_xml(char32_t character) {
    if (character < ' ') return character == '\t' || character == '\n' || character == '\r';
    return character != 0xFFFE && character != 0xFFFF;
}

/// A text that XML can carry.
std::string carried_text(const std::string& text) {
    std::string carried;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view here = rest;
        const char32_t character = take_character(rest);
        const bool fits = character != replacement && fits_xml(character);
        carried += fits ? here.substr(0, here.size() - rest.size()) : "\xEF\xBF\xBD";
    }
    return carried;
}

plist_t text_node(const std::string& text) {
    return plist_new_string(carried_text(text).c_str());
}

/// The text of a node that is one.
const char* text_of(plist_t node) {
    return plist_get_node_type(node) == PLIST_STRING ? plist_get_string_ptr(node, nullptr)
                                                     : nullptr;
}

long long count_of(plist_t dictionary) {
    const plist_t node = plist_dict_get_item(dictionary, count_key);
    if (const char* text = text_of(node)) return to_int32(text);
    std::uint64_t number = 0;
    if (plist_get_node_type(node) == PLIST_UINT) plist_get_uint_val(node, &number);
    return static_cast<long long>(number);
}

/// What stands under an index, by its index: a count may promise any number of them.
std::map<int, plist_t> indexed_nodes(plist_t dictionary) {
    std::map<int, plist_t> nodes;
    plist_dict_iter raw = nullptr;
    plist_dict_new_iter(dictionary, &raw);
    const Handed_Over<void> iterator(raw, &std::free);
    for (;;) {
        char* raw_key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, raw, &raw_key, &value);
        const Handed_Over<char> key(raw_key, &std::free);
        if (value == nullptr) return nodes;
        const int index = to_int32(key.get());
        if (index >= 0 && std::to_string(index) == key.get()) nodes[index] = value;
    }
}

std::optional<Listed_Contact> contact_of(plist_t record) {
    if (plist_get_node_type(record) != PLIST_ARRAY ||
        plist_array_get_size(record) < texts_of_a_record)
        return std::nullopt;
    const char* texts[texts_of_a_record];
    for (std::uint32_t i = 0; i < texts_of_a_record; ++i)
        texts[i] = text_of(plist_array_get_item(record, i));
    // The phone that takes the contact gives it an ID of its own.
    if (texts[1] == nullptr || texts[2] == nullptr) return std::nullopt;
    return Listed_Contact{texts[0] == nullptr ? "" : texts[0], texts[1], texts[2]};
}

/// How many levels a tag opens (-1 when it closes one). Comments and the like open none.
int levels(std::string_view tag) {
    for (const std::string_view container : {"array", "dict", "plist"}) {
        if (tag.starts_with(container)) return tag.ends_with('/') ? 0 : 1;
        if (tag.starts_with('/') && tag.substr(1).starts_with(container)) return -1;
    }
    return 0;
}

/// Where the markup that begins at `start` ends; nothing for what a list has no use for.
std::size_t end_of_markup(std::string_view file, std::size_t start) {
    const std::string_view rest = file.substr(start);
    if (rest.starts_with("<!--")) return file.find("-->", start);
    if (rest.starts_with("<![CDATA[")) return file.find("]]>", start);
    const std::size_t end =
        rest.starts_with("<?") ? file.find("?>", start + 1) : file.find('>', start);
    const std::string_view markup = file.substr(start, end - start);
    const bool has_rules_of_its_own =
        rest.starts_with("<!") && markup.find('[') != std::string_view::npos;
    // To the library the markup goes on behind an end that is quoted.
    const bool is_quoted = std::count(markup.begin(), markup.end(), '"') % 2 != 0;
    return has_rules_of_its_own || is_quoted ? std::string_view::npos : end;
}

/// The library walks a list by recursion: one that is deep enough would end the program.
bool is_shallow(std::string_view file) {
    int depth = 0;
    for (std::size_t start = 0; (start = file.find('<', start)) != std::string_view::npos;) {
        const std::size_t end = end_of_markup(file, start);
        if (end == std::string_view::npos) return false;
        depth += levels(file.substr(start + 1, end - start - 1));
        if (depth < 0 || depth > deepest) return false;
        start = end;
    }
    return true;
}

}  // namespace

std::string property_list_of(const std::vector<Listed_Contact>& contacts) {
    const Node dictionary(plist_new_dict());
    plist_dict_set_item(dictionary.get(), count_key, text_node(std::to_string(contacts.size())));
    for (std::size_t i = 0; i < contacts.size(); ++i) {
        const plist_t record = plist_new_array();
        for (const std::string* text : {&contacts[i].id, &contacts[i].name, &contacts[i].number})
            plist_array_append_item(record, text_node(*text));
        plist_dict_set_item(dictionary.get(), std::to_string(i).c_str(), record);
    }
    char* raw = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(dictionary.get(), &raw, &length);
    const Handed_Over<char> xml(raw, &std::free);
    return std::string(raw == nullptr ? "" : raw, raw == nullptr ? 0 : length);
}

std::optional<std::vector<Listed_Contact>> contacts_of_property_list(std::string_view file) {
    if (file.empty() || file.size() > std::numeric_limits<std::uint32_t>::max() ||
        !is_shallow(file))
        return std::nullopt;
    plist_t raw = nullptr;
    plist_from_xml(file.data(), static_cast<std::uint32_t>(file.size()), &raw);
    const Node dictionary(raw);
    if (plist_get_node_type(raw) != PLIST_DICT) return std::nullopt;
    const long long count = count_of(raw);
    std::vector<Listed_Contact> contacts;
    for (const auto& [index, node] : indexed_nodes(raw))
        if (const auto contact = contact_of(node); contact && index < count)
            contacts.push_back(*contact);
    return contacts;
}

}  // namespace velk
