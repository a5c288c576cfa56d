// Writes one line of the second wire: a JSON object.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velk {

/// Members are written as they are added. Bytes of a text that are no UTF-8 become U+FFFD.
class Wire_Line {
  public:
    /// The line is appended to `out`, which has to outlive this object.
    explicit Wire_Line(std::string& out) : out_(out) {}

    Wire_Line& text(std::string_view name, std::string_view value);
    Wire_Line& number(std::string_view name, std::int64_t value);
    /// A number of 64 bits, written as a text.
    Wire_Line& id(std::string_view name, std::int64_t value);
    Wire_Line& flag(std::string_view name, bool value);
    /// Closes the object and the line.
    void end();

  private:
    void name(std::string_view name);

    std::string& out_;
    char before_name_ = '{';
};

}  // namespace velk
