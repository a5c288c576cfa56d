#pragma once

#include <string>

namespace velk {

/// The pieces of an exported page. Upper and lower case of the tags is mixed as it always was:
/// pages are compared byte for byte with those that people already have.
struct HTML_Script {
    HTML_Script();

    std::string doctype_html_public;
    std::string html_begin = "<HTML>";
    std::string html_end = "</HTML>";
    std::string head_begin = "<HEAD>";
    std::string head_end = "</HEAD>";
    std::string title_begin = "<TITLE>";
    std::string title_end = "</TITLE>";
    std::string meta = "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" />";
    std::string style_begin = "<style>";
    std::string style_end = "</style>";
    std::string script_begin = "<SCRIPT>";
    std::string script_end = "</SCRIPT>";
    std::string body_begin = "<BODY>";
    std::string body_end = "</BODY>";
    std::string table_js;              // the whole style sheet
    std::string table_js_function;     // its rule for the table
    std::string table_th_js_function;  // its rule for header cells
    std::string table_td_js_function;  // its rule for data cells
    std::string table = "<table id=\"export\" border=\"1\">\n</table>";
    std::string window_onload_function;  // never set: the page calls its script in its own words
    std::string LoadTableData_function;  // builds the table when the page has loaded

  private:
    static std::string get_function_LoadTableData();
};

}  // namespace velk
