#include <gtest/gtest.h>

#include "export/html_tools.h"

namespace velk {
namespace {

TEST(Html, APageIsTheSameByteForByte) {
    const std::string data = "\n['ID','Name','Phone Number'],\n['1','<b>','5'],";
    EXPECT_EQ(HTML_Tools().get_html("A & B", data),
              "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
              "\"http://www.w3.org/TR/html4/loose.dtd\">\n"
              "<HTML>\n<HEAD>\n<TITLE>\nA & B\n</TITLE>\n"
              "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" />\n<style>\n"
              "table {font-family:Arial, Helvetica, sans-serif;}\ntable,td,th\n{\n"
              "border-collapse:collapse;\nborder:1px solid black;\n}\n\ntable\n{\n"
              "border:1px solid #666;\nborder-collapse:collapse;\nfont-size:13px;\n}\n\ntable th\n"
              "{\nborder:1px solid #666;\npadding:3px 10px;\nbackground: #1179C1;\n"
              "color: #FFFFFF;\nfont-weight:normal;\nfont-size:14px;\n}\n\ntable td\n{\n"
              "border:1px solid #666;\npadding:5px;\n}\n\n</style>\n</HEAD>\n<BODY>\n<SCRIPT>\n"
              "function LoadTableData(text)\n{\nvar table = document.getElementById(\"export\");\n"
              "var number = text.length;\nfor(var i = 0;i < number;++i)\n{\n"
              "var row = table.insertRow(i);\nvar cell_num = text[i].length;\n"
              "for(var j = 0;j < cell_num;++j)\n{\nvar cell;\nif(!i)\n{\n"
              "cell = document.createElement(\"th\");\nrow.appendChild(cell);\n}\nelse\n{\n"
              "cell = row.insertCell(j);\n}\ncell.innerHTML = text[i][j]\n}\n}\n}\n\n\n"
              "window.onload=function()\n{\nvar data=[\n['ID','Name','Phone Number'],\n"
              "['1','<b>','5'],\n];\nLoadTableData(data);\n}\n</SCRIPT>\n"
              "<table id=\"export\" border=\"1\">\n</table>\n</BODY>\n</HTML>\n");
}

}  // namespace
}  // namespace velk
