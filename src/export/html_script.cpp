#include "export/html_script.h"

namespace velk {

namespace {

constexpr const char* base_rules =
    "table {font-family:Arial, Helvetica, sans-serif;}\n"
    "table,td,th\n{\nborder-collapse:collapse;\nborder:1px solid black;\n}\n";

}  // namespace

HTML_Script::HTML_Script()
    : doctype_html_public(
          "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
          "\"http://www.w3.org/TR/html4/loose.dtd\">"),
      table_js_function(
          "\ntable\n{\nborder:1px solid #666;\nborder-collapse:collapse;\nfont-size:13px;\n}"),
      table_th_js_function(
          "\ntable th\n{\nborder:1px solid #666;\npadding:3px 10px;\nbackground: #1179C1;\n"
          "color: #FFFFFF;\nfont-weight:normal;\nfont-size:14px;\n}"),
      table_td_js_function("\ntable td\n{\nborder:1px solid #666;\npadding:5px;\n}"),
      LoadTableData_function(get_function_LoadTableData()) {
    // The later rules override the border of the base ones.
    table_js = base_rules + table_js_function + "\n" + table_th_js_function + "\n" +
               table_td_js_function + "\n";
}

std::string HTML_Script::get_function_LoadTableData() {
    return "function LoadTableData(text)\n{\n"
           "var table = document.getElementById(\"export\");\n"
           "var number = text.length;\n"
           "for(var i = 0;i < number;++i)\n{\n"
           "var row = table.insertRow(i);\n"
           "var cell_num = text[i].length;\n"
           "for(var j = 0;j < cell_num;++j)\n"
           "{\nvar cell;\nif(!i)\n{\ncell = document.createElement(\"th\");\n"
           "row.appendChild(cell);\n"
           "}\nelse\n{\ncell = row.insertCell(j);\n}\n"
           "cell.innerHTML = text[i][j]\n}\n}\n}\n";
}

}  // namespace velk
