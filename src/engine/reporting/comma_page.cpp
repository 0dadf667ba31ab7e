#include "reporting/comma_page.h"

#include <fmt/format.h>

#include "text/text_conversion.h"

namespace tallix {

namespace {

// A value that holds the marks of an HTML cell loses them.
std::string WithoutCellMarks(std::string_view row) {
    return Replace(Replace(row, "<TD>", ""), "</TD>", ",");
}

}  // namespace

void CommaPage::WriteHead() {
    const auto& [opening, precision] = Description().dateLine;
    const DateTime& now = Description().generated;
    const std::string time = precision == TimePrecision::Seconds ? ShortTime(now) : HoursAndMinutes(now);
    File().Line("Tallix Reports - " + Description().reportName);
    File().Line(fmt::format("{}{} At {}", opening, ShortDate(now), time));
    File().Line("Created By Tallix Reports V" + Description().version.Text());
    File().Line("");
}

void CommaPage::WriteColumnHeads(const std::vector<std::string_view>& labels) {
    PutTogether(labels);
    File().Line(row_);
}

void CommaPage::WriteRow(const std::vector<std::string_view>& cells) {
    PutTogether(cells);
    File().Line(row_.find('<') == std::string::npos ? row_ : WithoutCellMarks(row_));
}

void CommaPage::PutTogether(const std::vector<std::string_view>& values) {
    row_.clear();
    for (const std::string_view value : values) row_.append(value).push_back(',');
}

}  // namespace tallix
