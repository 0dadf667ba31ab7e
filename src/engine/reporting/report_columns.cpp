#include "reporting/report_columns.h"

namespace tallix {

namespace {

struct PlainColumn {
    DataKey key;
    Cell cell;
    std::string_view label;
};

// The columns up to the numbers, and those behind the area, stand alike in heads and rows.
constexpr PlainColumn kBeforeDuration[] = {
    {DataKey::Date, Cell::Date, "Date:"},
    {DataKey::Time, Cell::Time, "Time:"},
    {DataKey::Extension, Cell::Extension, "Extension:"},
    {DataKey::Name, Cell::Name, "Name:"},
};
constexpr PlainColumn kBeforeNumbers[] = {
    {DataKey::NumRings, Cell::NumRings, "Rings:"},
    {DataKey::Forward, Cell::Forward, "Forward:"},
    {DataKey::Account, Cell::Account, "Account:"},
};
constexpr PlainColumn kBehindArea[] = {
    {DataKey::Trunk, Cell::Trunk, "Trunk:"},
    {DataKey::Site, Cell::Site, "Site:"},
};

bool ShowsCountry(const ReportFlags& flags, NumberTable numbers) {
    return numbers == NumberTable::Providers && !flags[DataKey::Internal];
}

template <std::size_t N>
void AddCells(const PlainColumn (&columns)[N], const ReportFlags& flags, std::vector<Cell>& cells) {
    for (const PlainColumn& column : columns) {
        if (flags[column.key]) cells.push_back(column.cell);
    }
}

template <std::size_t N>
void AddLabels(const PlainColumn (&columns)[N], const ReportFlags& flags,
               std::vector<std::string_view>& heads) {
    for (const PlainColumn& column : columns) {
        if (flags[column.key]) heads.push_back(column.label);
    }
}

void AddNumberLabels(const ReportFlags& flags, std::vector<std::string_view>& heads) {
    if (flags[DataKey::OrigNum] && flags[DataKey::DestNum]) {
        heads.insert(heads.end(), {"From Number:", "Destination:"});
    } else if (flags[DataKey::OrigNum] || flags[DataKey::DestNum]) {
        heads.push_back("Number:");
    }
}

}  // namespace

std::vector<Cell> CellsOf(const ReportFlags& flags, NumberTable numbers) {
    std::vector<Cell> cells;
    AddCells(kBeforeDuration, flags, cells);
    if (flags[DataKey::Duration])
        cells.push_back(flags[DataKey::Sum] ? Cell::SummedDuration : Cell::Duration);
    AddCells(kBeforeNumbers, flags, cells);
    if (flags[DataKey::DestNum]) cells.push_back(Cell::DestNum);
    if (flags[DataKey::OrigNum]) cells.push_back(Cell::OrigNum);
    if (flags[DataKey::Area]) cells.push_back(Cell::Area);
    AddCells(kBehindArea, flags, cells);
    if (ShowsCountry(flags, numbers)) cells.push_back(Cell::Country);
    if (flags.Cost()) cells.push_back(Cell::Cost);
    return cells;
}

std::vector<std::string_view> HeadsOf(const ReportFlags& flags, NumberTable numbers) {
    std::vector<std::string_view> heads;
    AddLabels(kBeforeDuration, flags, heads);
    if (flags[DataKey::Duration]) heads.push_back("Duration:");
    AddLabels(kBeforeNumbers, flags, heads);
    AddNumberLabels(flags, heads);
    if (flags[DataKey::Area]) heads.push_back(numbers == NumberTable::Areas ? "Area:" : "Provider:");
    AddLabels(kBehindArea, flags, heads);
    if (ShowsCountry(flags, numbers)) heads.push_back("Country:");
    if (flags.Cost()) heads.push_back("Cost:");
    return heads;
}

}  // namespace tallix
