#include "reporting/coloured_page.h"

#include <fmt/format.h>

#include "text/text_conversion.h"

namespace tallix {

ColouredPage::ColouredPage(const std::filesystem::path& file, const PageDescription& description)
    : HtmlPage(file, description),
      shadedOpening_(fmt::format(R"(<TR align="{}" bgcolor="{}">)", description.settings.alignment,
                                 description.settings.colours.shading)) {}

void ColouredPage::WriteHead() {
    WriteHtmlHead(File(), Description().reportName);
    File().Line(fmt::format(R"(<TD><IMG SRC="{}\Reports\Tallix.jpg" height="57"width="210"></TD>)",
                            Description().applicationFolder));
    File().Line(R"(<TD><font face="arial" size=5></font><br><Font face="arial" size=2></font></TD>)");
    WriteAddress();
    WriteBanner();
    File().Lines(
        {R"(<font face="arial"><br>)", R"(<TABLE width="100%" border="0" summary="" cellspacing="0">)"});
}

void ColouredPage::WriteBanner() {
    const std::string& colour = Colours().banner;
    const DateTime& now = Description().generated;
    File().Lines({R"(<TABLE width="100%" border="0" cellspacing="0">)", "<TR>",
                  fmt::format(R"(<TD align="left" bgcolor="{}">)", colour),
                  R"(<font face="arial" size="5" color="white">)",
                  fmt::format("<b>{}</b></font>", Description().reportName), "</TD>",
                  fmt::format(R"(<TD align="right" bgcolor="{}">)", colour),
                  R"(<Font face="arial" size="2" color="white">)",
                  fmt::format("Date: {}<br>", ShortDate(now)),
                  fmt::format("Time: {}</font>", HoursAndMinutes(now)), "</TD>", "</TR>", "</TABLE>"});
}

// The repeated heads get their row opening from the Date column and from it alone.
void ColouredPage::WriteColumnHeads(const std::vector<std::string_view>& labels) {
    const std::string& colour = Colours().heads;
    std::string line;
    for (const std::string_view label : labels) {
        line += fmt::format(R"(<TH bgcolor="{}"><font color="white">{}</FONT></TH>)", colour, label);
        if (label == "Date:") repeatedHeads_ += fmt::format(R"(<TR align="center" bgcolor="{}">)", colour);
        repeatedHeads_ += fmt::format(R"(<TD><font color="white"><B>{}</B></FONT></TD>)", label);
    }
    File().Line(line);
}

void ColouredPage::WriteRow(const std::vector<std::string_view>& cells) {
    if (sheets_.NextRow()) File().Line(repeatedHeads_);
    WriteCells(shaded_ ? shadedOpening_ : RowOpening(), cells);
    shaded_ = !shaded_;
}

void ColouredPage::WriteTotalLine(const std::string& text) {
    File().Lines({R"(<TABLE width="100%" border="0" cellspacing="0">)", "<TH>",
                  fmt::format(R"(<TD bgcolor="{}">)", Colours().totalBar),
                  R"(<FONT face="arial" color="white">)", fmt::format("<B>{}</B></font>", text), "</TD>",
                  "</TABLE>"});
}

}  // namespace tallix
