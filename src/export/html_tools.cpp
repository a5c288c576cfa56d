#include "export/html_tools.h"

namespace velk {

std::string HTML_Tools::get_html(const std::string& title, const std::string& context) const {
    std::string page;
    const auto line = [&page](const std::string& piece) { page.append(piece).append("\n"); };
    for (const std::string* piece :
         {&script_.doctype_html_public, &script_.html_begin, &script_.head_begin,
          &script_.title_begin, &title, &script_.title_end, &script_.meta, &script_.style_begin,
          &script_.table_js, &script_.style_end, &script_.head_end, &script_.body_begin,
          &script_.script_begin, &script_.LoadTableData_function})
        line(*piece);
    page.append("\nwindow.onload=function()\n{\nvar data=[").append(context);
    page.append("\n];\nLoadTableData(data);\n}\n");
    for (const std::string* piece :
         {&script_.script_end, &script_.table, &script_.body_end, &script_.html_end})
        line(*piece);
    return page;
}

}  // namespace velk
