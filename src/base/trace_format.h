#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <type_traits>

namespace velk {

struct Plain;

/// The format of a trace, as printf knows it: a constant of the program, so that nothing private
/// can be in it, whose conversions are those of the arguments. Any other does not compile.
template <class... Arguments>
class Trace_Format {
  public:
    consteval Trace_Format(const char* text) : text_(text) {
        std::string_view rest = text;
        const bool all_fit = (fits<std::decay_t<Arguments>>(rest) && ...);
        if (!all_fit || !next_conversion(rest).empty()) the_arguments_are_not_those_of_the_format();
    }
    constexpr const char* text() const { return text_; }

  private:
    /// What stands behind "%", flags and width where an argument of the type belongs.
    template <class Argument>
    static constexpr std::string_view conversion() {
        if (std::is_same_v<Argument, int> || std::is_same_v<Argument, bool>) return "d";
        if (std::is_same_v<Argument, unsigned int>) return "x";
        if (std::is_same_v<Argument, long>) return "ld";
        if (std::is_same_v<Argument, unsigned long>) return "lx";
        const bool is_text =
            std::is_convertible_v<Argument, const char*> || std::is_same_v<Argument, std::string>;
        return is_text || std::is_same_v<Argument, Plain> ? "s" : "none";
    }
    /// Takes what stands before the next conversion, "%", flags and width, and gives the rest.
    static constexpr std::string_view next_conversion(std::string_view& rest) {
        while (!rest.empty()) {
            rest.remove_prefix(std::min(rest.find('%'), rest.size()));
            if (!rest.starts_with("%%")) break;
            rest.remove_prefix(2);
        }
        const std::size_t begin = rest.find_first_not_of("%0123456789");
        rest.remove_prefix(std::min(begin, rest.size()));
        return rest;
    }
    template <class Argument>
    static constexpr bool fits(std::string_view& rest) {
        const std::string_view wanted = conversion<Argument>();
        if (!next_conversion(rest).starts_with(wanted)) return false;
        rest.remove_prefix(wanted.size());
        return true;
    }
    static void the_arguments_are_not_those_of_the_format() {}  // nothing that a compiler may call

    const char* text_;
};

}  // namespace velk
