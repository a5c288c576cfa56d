#include <gtest/gtest.h>

#include "export/html_tools.h"

namespace velk {
namespace {

TEST(Html, APageIsTheSameByteForByte) {
    const std::string data = "\n['ID','Name','Phone Number'],\n['1','<b>','5'],";
    EXPECT_EQ(
        HTML_Tools().get_html("A & B", data),
        R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" "http://www.w3.org/TR/html4/loose.dtd">
<HTML>
<HEAD>
<TITLE>
A & B
</TITLE>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8" />
<style>
table {font-family:Arial, Helvetica, sans-serif;}
table,td,th
{
border-collapse:collapse;
border:1px solid black;
}

table
{
border:1px solid #666;
border-collapse:collapse;
font-size:13px;
}

table th
{
border:1px solid #666;
padding:3px 10px;
background: #1179C1;
color: #FFFFFF;
font-weight:normal;
font-size:14px;
}

table td
{
border:1px solid #666;
padding:5px;
}

</style>
</HEAD>
<BODY>
<SCRIPT>
function LoadTableData(text)
{
var table = document.getElementById("export");
var number = text.length;
for(var i = 0;i < number;++i)
{
var row = table.insertRow(i);
var cell_num = text[i].length;
for(var j = 0;j < cell_num;++j)
{
var cell;
if(!i)
{
cell = document.createElement("th");
row.appendChild(cell);
}
else
{
cell = row.insertCell(j);
}
cell.innerHTML = text[i][j]
}
}
}


window.onload=function()
{
var data=[
['ID','Name','Phone Number'],
['1','<b>','5'],
];
LoadTableData(data);
}
</SCRIPT>
<table id="export" border="1">
</table>
</BODY>
</HTML>
)");
}

}  // namespace
}  // namespace velk
