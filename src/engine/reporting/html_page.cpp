#include "reporting/html_page.h"

#include <fmt/format.h>

namespace tallix {

namespace {

constexpr int kRowsOnFirstSheet = 62;
constexpr int kRowsOnSheet = 75;

}  // namespace

void WriteHtmlHead(AnsiFile& file, std::string_view reportName) {
    file.Line("<HTML><HEAD>");
    file.Line(fmt::format("<TITLE>Tallix Reports - {}</TITLE>", reportName));
    file.Line(R"(<style type="text/css" media="print">)");
    file.Line("TD{font-size:60%;}");
    file.Line("TH{font-size:70%;}");
    file.Line("</style>");
    file.Line("</HEAD><BODY>");
    file.Lines({kHeadTable, "<TR>"});
}

bool SheetCounter::NextRow() {
    const bool full = rows_ == (firstSheet_ ? kRowsOnFirstSheet : kRowsOnSheet);
    if (full) {
        firstSheet_ = false;
        rows_ = 0;
    }
    ++rows_;
    return full;
}

HtmlPage::HtmlPage(const std::filesystem::path& file, const PageDescription& description)
    : PageWriter(file, description),
      rowOpening_(fmt::format(R"(<TR align="{}">)", description.settings.alignment)) {}

void HtmlPage::WriteAddress() {
    File().Line(R"(<TD align="right"><font face="arial" size=1>)");
    if (Description().siteName) File().Line(fmt::format("<b>{}</b><br>", *Description().siteName));
    for (const std::string& line : Description().addressLines) File().Line(line + "<br>");
    File().Lines({"</TD>", "</TR>", "</TABLE>"});
}

void HtmlPage::WriteTitle(std::string_view title) {
    File().Line(fmt::format("<b>{}</B><BR><BR>", title));
}

void HtmlPage::WriteCells(std::string_view opening, const std::vector<std::string_view>& cells) {
    row_ = opening;
    for (const std::string_view cell : cells) row_.append("<TD>").append(cell).append("</TD>");
    File().Line(row_);
}

void HtmlPage::WriteTotals(const PageTotals& totals) {
    File().Lines({"</TABLE>", "<BR>"});
    WriteTotalLine(TextOf(totals));
}

void HtmlPage::WriteEnd(std::string_view graph) {
    File().Lines({graph, "</FONT>", "</BODY>", "</HTML>"});
}

}  // namespace tallix
