// The columns of reports, as one table: adding a column is adding a row. A row names the
// column of the call that it shows and says how preset and custom reports show it. Keys,
// heads, cells and the field list of custom reports all follow from the table.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tallix {

/// What decides whether a preset report shows a column.
enum class ShownBy {
    DataKey,       ///< its key in section "Data"
    OptionsKey,    ///< its key in section "Options"
    ProviderMode,  ///< the setting `Providers`; reports of internal calls do not have it
};

/// How a preset report makes the text of a cell (reporting/row_resolution.h).
enum class PresetCell { Field, Name, Forward, Number, Area, Country, Cost };

/// When a preset report shows the second label of a column.
enum class SecondLabel { Never, WithBothNumbers, InAreaMode };

struct PresetColumn {
    std::string_view key{};    ///< in the report file; empty where there is none
    std::string_view label{};  ///< in the head
    PresetCell cell = PresetCell::Field;
    ShownBy shownBy = ShownBy::DataKey;  ///< with an empty key: no preset report has the column
    SecondLabel when = SecondLabel::Never;
    std::string_view secondLabel{};
    std::string_view summed{};  ///< column of the call where the report's switch `Sum` is on
};

/// How a custom report filters by a cell and makes its text (reporting/custom_rows.h).
enum class CustomCell { Field, Name, Date, Duration, Extension, Account, YesForOne, NoForZero };

struct CustomColumn {
    std::size_t place = 0;     ///< in lists, heads and rows, from 1; 0 where custom reports lack it
    std::string_view entry{};  ///< in the list of fields
    std::string_view key{};    ///< of section "Data"
    std::string_view label{};  ///< in the head
    CustomCell cell = CustomCell::Field;
};

struct ReportColumn {
    std::string_view source;  ///< column of the call
    PresetColumn preset{};
    CustomColumn custom{};
};

/// In the order of preset reports. With both numbers shown, their labels are crossed: the
/// number dialled is under "From Number:" and the calling one under "Destination:".
/// Readers of the reports rely on it.
inline constexpr auto kReportColumns = std::to_array<ReportColumn>({
    {.source = "Date",
     .preset = {.key = "Date", .label = "Date:"},
     .custom = {2, "Date", "Date", "Date:", CustomCell::Date}},
    {.source = "Time", .preset = {.key = "Time", .label = "Time:"}, .custom = {3, "Time", "Time", "Time:"}},
    {.source = "Extension",
     .preset = {.key = "Extension", .label = "Extension:"},
     .custom = {5, "Extension Number", "Ext", "Extension:", CustomCell::Extension}},
    {.source = "Extension",
     .preset = {.key = "Name", .label = "Name:", .cell = PresetCell::Name},
     .custom = {1, "Extension Name", "ExtName", "Name:", CustomCell::Name}},
    {.source = "Duration",
     .preset = {.key = "Duration", .label = "Duration:", .summed = "sDuration"},
     .custom = {4, "Duration", "Duration", "Duration:", CustomCell::Duration}},
    {.source = "NumRings",
     .preset = {.key = "NumRings", .label = "Rings:"},
     .custom = {6, "Number Of Rings", "NoR", "Rings:"}},
    {.source = "Forward",
     .preset = {.key = "Forward", .label = "Forward:", .cell = PresetCell::Forward},
     .custom = {11, "Forwarded", "Forward", "Forward:", CustomCell::YesForOne}},
    {.source = "Account",
     .preset = {.key = "Account", .label = "Account:"},
     .custom = {13, "Account Code", "Account", "Account:", CustomCell::Account}},
    {.source = "DestNum",
     .preset = {.key = "DestNum",
                .label = "Number:",
                .cell = PresetCell::Number,
                .when = SecondLabel::WithBothNumbers,
                .secondLabel = "From Number:"},
     .custom = {8, "Destination Number", "DestNum", "Destination:"}},
    {.source = "OrigNum",
     .preset = {.key = "OrigNum",
                .label = "Number:",
                .when = SecondLabel::WithBothNumbers,
                .secondLabel = "Destination:"},
     .custom = {7, "Original Number", "OrigNum", "Originator:"}},
    {.source = "DestNum",
     .preset = {.key = "Area",
                .label = "Provider:",
                .cell = PresetCell::Area,
                .when = SecondLabel::InAreaMode,
                .secondLabel = "Area:"}},
    {.source = "Trunk",
     .preset = {.key = "Trunk", .label = "Trunk:"},
     .custom = {12, "Trunk Call", "Trunk", "Trunk:", CustomCell::NoForZero}},
    {.source = "Site", .preset = {.key = "Site", .label = "Site:"}},
    {.source = "DestNum",
     .preset = {.label = "Country:", .cell = PresetCell::Country, .shownBy = ShownBy::ProviderMode}},
    {.source = "ID",
     .preset = {.key = "Cost", .label = "Cost:", .cell = PresetCell::Cost, .shownBy = ShownBy::OptionsKey}},
    {.source = "Internal", .custom = {9, "Internal Call", "Internal", "Internal:", CustomCell::YesForOne}},
    {.source = "Speedcall", .custom = {10, "Speedcall", "Speedcall", "Speedcall:", CustomCell::YesForOne}},
});

/// The place in kReportColumns of the column that report files call `key`.
consteval std::size_t ColumnOfKey(std::string_view key) {
    std::size_t place = 0;
    while (kReportColumns.at(place).preset.key != key) ++place;
    return place;
}

// The columns that rules ask for by name.
inline constexpr std::size_t kDestNumColumn = ColumnOfKey("DestNum");
inline constexpr std::size_t kOrigNumColumn = ColumnOfKey("OrigNum");
inline constexpr std::size_t kCostColumn = ColumnOfKey("Cost");

inline constexpr std::size_t kCustomFields =
    std::count_if(kReportColumns.begin(), kReportColumns.end(),
                  [](const ReportColumn& column) { return column.custom.place > 0; });

/// The columns of custom reports in their order. Does not compile where a place is taken
/// twice or left out.
inline constexpr auto kCustomColumns = [] {
    std::array<const ReportColumn*, kCustomFields> columns{};
    for (const ReportColumn& column : kReportColumns) {
        if (column.custom.place == 0) continue;
        const ReportColumn*& free = columns.at(column.custom.place - 1);
        if (free != nullptr) throw "two columns of custom reports have one place";
        free = &column;
    }
    return columns;
}();

/// The place in kCustomColumns of the field whose key is `key`.
constexpr std::size_t CustomFieldOfKey(std::string_view key) {
    std::size_t place = 0;
    while (kCustomColumns.at(place)->custom.key != key) ++place;
    return place;
}

}  // namespace tallix
