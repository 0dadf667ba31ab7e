#include "reporting/bar_graph.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <optional>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::array<std::string_view, 11> kColours = {
    "Magenta", "LightGreen", "Yellow", "Black", "Blue", "Red", "SeaGreen", "Orange", "Navy", "Gold", "Teal"};
constexpr std::size_t kSeries = 9;
constexpr int kGroups = 10;
constexpr double kWhole = 100;

std::string Legend(const ado::Recordset& calls, int barWidth) {
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

ado::Value ValueOf(const ado::Recordset& calls, std::size_t field) {
    ado::Value value;
    Attempt([&] { value = calls.Item(calls.ColumnNames().at(field)); });
    return value;
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

std::string Bar(double percent, std::string_view colour, int height, int barWidth) {
    return fmt::format(
        "<Table Height={} Cellpadding=0 CellSpacing=0 border=0 Width={} Align=Left><tr><td height={}%></td>"
        "</tr><tr><td bgColor={} height={}%></td></tr></Table>",
        height, barWidth, kWhole - percent, colour, percent);
}

std::string Group(const ado::Recordset& calls, int height, int barWidth) {
    std::string group =
        fmt::format("<Table Height={} Cellpadding=0 CellSpacing=0 border=0 Align=Left><TR><TD>", height);
    for (std::size_t series = 1; series <= kSeries; ++series) {
        const std::optional<double> percent = PercentageOf(ValueOf(calls, series));
        group += percent ? Bar(*percent, kColours.at(series - 1), height, barWidth) : Gap(barWidth);
    }
    return group + "</td></tr><tr><td Align=Center NoWrap>" +
           R"(<DIV style="FONT-SIZE: 10pt; WIDTH: 10pt; WRITING-MODE: tb-rl"> )" +
           std::string(ValueOf(calls, 0).value_or("")) + "</DIV></td></tr></table>\r\n";
}

}  // namespace

std::string BuildBarGraph(ado::Recordset& calls, int height, int barWidth) {
    std::string graph = fmt::format(
        "<Table border=1 bordercolor=black CellPadding=0 CellSpacing=0 height={}><tr><td vAlign=Center>",
        height);
    graph += Legend(calls, barWidth) + "</td></tr><tr><td vAlign=Center>";
    for (int group = 0; group < kGroups; ++group, calls.MoveNext()) graph += Group(calls, height, barWidth);
    return graph + "</td></tr></table>";
}

}  // namespace tallix
