#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace velk {

/// What a person looks for: the letters count, their case and accents do not.
class Search_Term {
  public:
    Search_Term() = default;
    explicit Search_Term(const QString& typed);

    /// Nothing is looked for, and everything is found.
    bool empty() const { return folded_.empty(); }
    /// True when the text holds it; `text` is UTF-8, or whatever bytes there are.
    bool is_in(std::string_view text) const;
    /// True when the other one is in every text that this one is in.
    bool narrows(const Search_Term& other) const;

  private:
    std::string folded_;
    bool is_ascii_ = true;
};

}  // namespace velk
