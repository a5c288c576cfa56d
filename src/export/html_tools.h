#pragma once

#include <string>

#include "export/html_script.h"

namespace velk {

/// Puts an exported page together: one self-contained file whose script builds the table.
class HTML_Tools {
  public:
    /// The whole page. `title` goes in as it is; `context` is the data text: JavaScript array
    /// literals separated by commas, the header row first.
    std::string get_html(const std::string& title, const std::string& context) const;

  private:
    HTML_Script script_;
};

}  // namespace velk
