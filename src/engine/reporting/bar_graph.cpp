#include "reporting/bar_graph.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <optional>

#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::array<std::string_view, 11> kColours = {
    "Magenta", "LightGreen", "Yellow", "Black", "Blue", "Red", "SeaGreen", "Orange", "Navy", "Gold", "Teal"};
constexpr std::size_t kSeries = 9;
constexpr int kGroups = 10;
constexpr double kWhole = 100;

std::string Legend(const ado::Rows& calls, int barWidth) {
    const std::vector<std::string>& names = calls.ColumnNames();
    if (names.size() <= kSeries) throw DatabaseError("The chart needs ten fields");
    std::string legend;
    for (std::size_t series = 1; series <= kSeries; ++series) {
        legend += fmt::format(
            R"(<Table width=100% border=0 CellPadding=0 CellSpacing=0 height={}><tr><td bgColor={} )"
            R"(style="color:white;font-size:8pt"> {} </td></tr></table>)",
            barWidth, kColours.at(series - 1), names.at(series));
    }
    return legend;
}

// Nothing for a record after the last one.
ado::Value ValueOf(const ado::Rows& calls, std::int64_t record, std::size_t field) {
    if (record >= calls.Count()) return std::nullopt;
    return calls[record].Item(calls.ColumnNames().at(field));
}

std::string Gap(int barWidth) {
    return fmt::format(
        "<Table Height=1 Cellpadding=0 CellSpacing=0 border=0 Width={} Align=Left><tr><td></td></tr></Table>",
        barWidth);
}

std::optional<double> PercentageOf(ado::Value value) {
    const std::string_view text = Trim(value.value_or(""));
    double percent = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), percent);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return percent;
}

std::string Bar(double percent, std::string_view colour, const GraphSize& size) {
    return fmt::format(
        "<Table Height={} Cellpadding=0 CellSpacing=0 border=0 Width={} Align=Left><tr><td height={}%></td>"
        "</tr><tr><td bgColor={} height={}%></td></tr></Table>",
        size.height, size.barWidth, kWhole - percent, colour, percent);
}

std::string Group(const ado::Rows& calls, std::int64_t record, const GraphSize& size) {
    std::string group =
        fmt::format("<Table Height={} Cellpadding=0 CellSpacing=0 border=0 Align=Left><TR><TD>", size.height);
    for (std::size_t series = 1; series <= kSeries; ++series) {
        const std::optional<double> percent = PercentageOf(ValueOf(calls, record, series));
        group += percent ? Bar(*percent, kColours.at(series - 1), size) : Gap(size.barWidth);
    }
    return group + "</td></tr><tr><td Align=Center NoWrap>" +
           R"(<DIV style="FONT-SIZE: 10pt; WIDTH: 10pt; WRITING-MODE: tb-rl"> )" +
           std::string(ValueOf(calls, record, 0).value_or("")) + "</DIV></td></tr></table>\r\n";
}

}  // namespace

std::string BuildBarGraph(const ado::Rows& calls, std::int64_t first, const GraphSize& size) {
    std::string graph = fmt::format(
        "<Table border=1 bordercolor=black CellPadding=0 CellSpacing=0 height={}><tr><td vAlign=Center>",
        size.height);
    graph += Legend(calls, size.barWidth) + "</td></tr><tr><td vAlign=Center>";
    for (int group = 0; group < kGroups; ++group) graph += Group(calls, first + group, size);
    return graph + "</td></tr></table>";
}

}  // namespace tallix
