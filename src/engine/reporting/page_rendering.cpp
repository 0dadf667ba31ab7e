#include "reporting/page_rendering.h"

#include <fmt/format.h>

#include "text/text_conversion.h"

namespace tallix {

namespace {

// Rows to a printed sheet before the heads are repeated: the first has the page head too.
constexpr int kRowsOnFirstSheet = 62;
constexpr int kRowsOnSheet = 75;

constexpr std::string_view kHeadTable = R"(<TABLE width="100%" border="0" valign="middle" cellpadding="5">)";

std::string ColouredHeadOpening(const std::string& colour) {
    return fmt::format(R"(<TH bgcolor="{}"><font color="white">)", colour);
}

// Cells are resolved as HTML; comma text takes a cell's own marks away with them.
std::string WithoutCellMarks(std::string_view cell) {
    return Replace(Replace(cell, "<TD>", ""), "</TD>", ",");
}

std::string CountText(const PageTotals& totals) {
    std::string text = fmt::format("Total Number Of Records: {}", totals.records);
    if (totals.showsCost) text += "  |  Total Cost " + totals.cost;
    return text;
}

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

Page::Page(const std::filesystem::path& file, const PageDescription& description)
    : description_(description),
      file_(file),
      rowOpening_(fmt::format(R"(<TR align="{}">)", description.settings.alignment)),
      shadedRowOpening_(fmt::format(R"(<TR align="{}" bgcolor="{}">)", description.settings.alignment,
                                    description.settings.colours.shading)) {
    if (description.shape == PageShape::Bare)
        rowOpening_ += "\r\n";  // the cells stand on a line of their own
}

void Page::WriteHead() {
    if (description_.shape == PageShape::CommaText) return WriteCommaHead();
    if (description_.shape == PageShape::Bare) return WriteBareHead();
    WriteHtmlHead(file_, description_.reportName);
    if (description_.shape == PageShape::Coloured) {
        WriteColouredHead();
    } else {
        WritePlainHead();
    }
}

void Page::WriteCommaHead() {
    const DateTime& now = description_.generated;
    const std::string time = description_.rules.showsSeconds ? ShortTime(now) : HoursAndMinutes(now);
    file_.Line("Tallix Reports - " + description_.reportName);
    file_.Line(fmt::format("{}{} At {}", description_.rules.generatedOn, ShortDate(now), time));
    file_.Line("Created By Tallix Reports V" + description_.version.Text());
    file_.Line("");
}

// What the site does not have leaves no line.
void Page::WriteAddress() {
    file_.Line(R"(<TD align="right"><font face="arial" size=1>)");
    if (description_.siteName) file_.Line(fmt::format("<b>{}</b><br>", *description_.siteName));
    for (const std::string& line : description_.addressLines) file_.Line(line + "<br>");
    file_.Lines({"</TD>", "</TR>", "</TABLE>"});
}

void Page::WriteBareHead() {
    file_.Lines({"<HTML>", fmt::format("<TITLE>Tallix Reports - {}</TITLE>", description_.reportName),
                 "<BODY>", kHeadTable, "<TR>"});
    WritePlainHead();
}

void Page::WritePlainHead() {
    const DateTime& now = description_.generated;
    file_.Line(
        fmt::format(R"(<TD><IMG SRC="{}\Logo.jpg" height="82"width="130"></TD>)", description_.docsLocation));
    file_.Line(fmt::format(R"(<TD><font face="arial" size=5><B>{}</B></font><br><hr/>)"
                           R"(<Font face="arial" size=2>Generated On: {} At {})"
                           R"(<br>Created By Tallix Reports V{}&nbsp;&nbsp;</font></TD>)",
                           description_.reportName, ShortDate(now), HoursAndMinutes(now),
                           description_.version.Text()));
    WriteAddress();
    file_.Lines({R"(<HR size=2 noshade=true color="black"><font face="arial"><br>)",
                 R"(<TABLE width="100%" border="1" summary="" cellspacing="1">)", R"(<TR align="center">)"});
}

void Page::WriteColouredHead() {
    file_.Line(fmt::format(R"(<TD><IMG SRC="{}\Reports\Tallix.jpg" height="57"width="210"></TD>)",
                           description_.applicationFolder));
    file_.Line(R"(<TD><font face="arial" size=5></font><br><Font face="arial" size=2></font></TD>)");
    WriteAddress();
    WriteBanner();
    file_.Lines(
        {R"(<font face="arial"><br>)", R"(<TABLE width="100%" border="0" summary="" cellspacing="0">)"});
}

void Page::WriteBanner() {
    const std::string& colour = description_.settings.colours.banner;
    const DateTime& now = description_.generated;
    file_.Lines({R"(<TABLE width="100%" border="0" cellspacing="0">)", "<TR>",
                 fmt::format(R"(<TD align="left" bgcolor="{}">)", colour),
                 R"(<font face="arial" size="5" color="white">)",
                 fmt::format("<b>{}</b></font>", description_.reportName), "</TD>",
                 fmt::format(R"(<TD align="right" bgcolor="{}">)", colour),
                 R"(<Font face="arial" size="2" color="white">)", fmt::format("Date: {}<br>", ShortDate(now)),
                 fmt::format("Time: {}</font>", HoursAndMinutes(now)), "</TD>", "</TR>", "</TABLE>"});
}

void Page::WriteTitle(std::string_view title) {
    if (description_.shape == PageShape::CommaText) return file_.Line(title);
    file_.Line(fmt::format("<b>{}</B><BR><BR>", title));
}

// The repeated heads get their row opening from the Date column and from it alone.
void Page::WriteColumnHeads(const std::vector<std::string_view>& labels) {
    const bool coloured = description_.settings.coloured;
    const std::string& colour = description_.settings.colours.heads;
    const bool comma = description_.shape == PageShape::CommaText;
    const std::string opening = comma ? "" : coloured ? ColouredHeadOpening(colour) : "<TH>";
    const std::string closing = comma ? "," : coloured ? "</FONT></TH>" : "</TH>";
    std::string line;
    for (const std::string_view label : labels) {
        line += fmt::format("{}{}{}", opening, label, closing);
        if (!coloured) continue;
        if (label == "Date:") repeatedHeads_ += fmt::format(R"(<TR align="center" bgcolor="{}">)", colour);
        repeatedHeads_ += fmt::format(R"(<TD><font color="white"><B>{}</B></FONT></TD>)", label);
    }
    file_.Line(line);
}

void Page::WriteRow(const std::vector<std::string_view>& cells) {
    if (description_.shape == PageShape::CommaText) return WriteCommaRow(cells);
    if (description_.shape != PageShape::Bare) WriteRepeatedHeads();
    const bool shade = shaded_ && description_.shape == PageShape::Coloured;
    row_ = shade ? shadedRowOpening_ : rowOpening_;
    for (const std::string_view cell : cells) row_.append("<TD>").append(cell).append("</TD>");
    file_.Line(row_);
    FlipShading();
}

void Page::WriteRepeatedHeads() {
    if (rowsOnSheet_ == (firstSheet_ ? kRowsOnFirstSheet : kRowsOnSheet)) {
        file_.Line(repeatedHeads_);
        firstSheet_ = false;
        rowsOnSheet_ = 0;
    }
    ++rowsOnSheet_;
}

void Page::WriteCommaRow(const std::vector<std::string_view>& cells) {
    row_.clear();
    for (const std::string_view cell : cells) row_.append(cell).push_back(',');
    file_.Line(row_.find('<') == std::string::npos ? row_ : WithoutCellMarks(row_));
}

void Page::WriteTotals(const PageTotals& totals) {
    const std::string text = CountText(totals);
    if (description_.shape == PageShape::CommaText) return file_.Lines({"", text});
    file_.Lines({"</TABLE>", "<BR>"});
    if (description_.shape != PageShape::Coloured) return file_.Line(fmt::format("<B>{}</B>", text));
    file_.Lines({R"(<TABLE width="100%" border="0" cellspacing="0">)", "<TH>",
                 fmt::format(R"(<TD bgcolor="{}">)", description_.settings.colours.totalBar),
                 R"(<FONT face="arial" color="white">)", fmt::format("<B>{}</B></font>", text), "</TD>",
                 "</TABLE>"});
}

void Page::WriteEnd(std::string_view graph) {
    if (description_.shape == PageShape::CommaText) return;
    file_.Lines({graph, "</FONT>", "</BODY>", "</HTML>"});
}

}  // namespace tallix
