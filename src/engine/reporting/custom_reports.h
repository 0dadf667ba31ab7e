// Reports that people make for themselves: thirteen fields to show or not, filters, and a
// destination, in a file of keys a report. They run through the same pipeline as preset
// reports, by rules of their own (reporting/custom_rows.h).
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "reporting/destinations.h"
#include "reporting/run_description.h"

namespace tallix {

/// The fields in the order of their entries, heads and cells.
enum class CustomField {
    ExtensionName,
    Date,
    Time,
    Duration,
    Extension,
    NumRings,
    OrigNum,
    DestNum,
    Internal,
    Speedcall,
    Forward,
    Trunk,
    Account,
};
inline constexpr std::size_t kCustomFields = 13;

struct CustomFieldNames {
    std::string_view entry;   ///< in the list of fields
    std::string_view key;     ///< of section "Data"
    std::string_view head;    ///< of the column
    std::string_view column;  ///< of the call
};
extern const std::array<CustomFieldNames, kCustomFields> kCustomFieldNames;

struct CustomReport {
    std::array<bool, kCustomFields> shown{};
    std::string account{};
    std::string duration{};  ///< compared as text, by one of the two below
    bool greater = false;
    bool less = false;
    std::string startDate{};
    std::string endDate{};
    std::string extension{};
    Destination destination = Destination::OnScreen;
    std::string application{};  ///< entry of the application list

    bool Shows(CustomField field) const { return shown[static_cast<std::size_t>(field)]; }
};

/// The folder of the report files below ReportsLocation.
std::filesystem::path CustomReportsFolder(const std::string& reportsLocation);

/// Takes the keys of a report file; what is missing or does not convert stays as it was.
void ReadCustomReport(const std::string& reportsLocation, std::string_view name, CustomReport& report);

/// Writes the report file, replacing one of that name. A name that no file in the folder
/// can have, or a folder that takes no file, loses the report without a word.
void WriteCustomReport(const std::string& reportsLocation, std::string_view name, const CustomReport& report);

/// An extension of three characters gets a "0" in front: calls hold four.
std::string FullExtension(const std::string& extension);

/// The run of a report. `report` must outlive it.
RunDescription DescribeCustomRun(const std::string& name, const CustomReport& report);

}  // namespace tallix
