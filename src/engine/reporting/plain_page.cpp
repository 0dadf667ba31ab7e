#include "reporting/plain_page.h"

#include <fmt/format.h>

#include "text/text_conversion.h"

namespace tallix {

void PlainPage::WriteHead() {
    WriteHtmlHead(File(), Description().reportName);
    WriteHeadTable();
}

void PlainPage::WriteHeadTable() {
    const DateTime& now = Description().generated;
    File().Line(fmt::format(R"(<TD><IMG SRC="{}\Logo.jpg" height="82"width="130"></TD>)",
                            Description().docsLocation));
    File().Line(fmt::format(R"(<TD><font face="arial" size=5><B>{}</B></font><br><hr/>)"
                            R"(<Font face="arial" size=2>Generated On: {} At {})"
                            R"(<br>Created By Tallix Reports V{}&nbsp;&nbsp;</font></TD>)",
                            Description().reportName, ShortDate(now), HoursAndMinutes(now),
                            Description().version.Text()));
    WriteAddress();
    File().Lines({R"(<HR size=2 noshade=true color="black"><font face="arial"><br>)",
                  R"(<TABLE width="100%" border="1" summary="" cellspacing="1">)", R"(<TR align="center">)"});
}

void PlainPage::WriteColumnHeads(const std::vector<std::string_view>& labels) {
    std::string line;
    for (const std::string_view label : labels) line.append("<TH>").append(label).append("</TH>");
    File().Line(line);
}

// A new sheet gets an empty line in place of the heads.
void PlainPage::WriteRow(const std::vector<std::string_view>& cells) {
    if (sheets_.NextRow()) File().Line("");
    WriteCells(RowOpening(), cells);
}

void PlainPage::WriteTotalLine(const std::string& text) {
    File().Line(fmt::format("<B>{}</B>", text));
}

void BarePage::WriteHead() {
    File().Lines({"<HTML>", fmt::format("<TITLE>Tallix Reports - {}</TITLE>", Description().reportName),
                  "<BODY>", kHeadTable, "<TR>"});
    WriteHeadTable();
}

}  // namespace tallix
