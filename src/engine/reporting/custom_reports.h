// Reports that people make for themselves: fields to show or not, filters, and a
// destination, in one file of keys per report. They run through the same pipeline as preset
// reports, by rules of their own (reporting/custom_rows.h).
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "reporting/destinations.h"
#include "reporting/report_columns.h"

namespace tallix {

/// How the filter of the duration compares.
enum class DurationTest { None, Greater, Less };

struct CustomReport {
    std::array<bool, kCustomFields> shown{};  ///< by their place in kCustomColumns
    std::string account{};
    std::string duration{};  ///< compared as text
    DurationTest durationTest = DurationTest::None;
    std::string startDate{};
    std::string endDate{};
    std::string extension{};
    Destination destination = Destination::OnScreen;
    std::string application{};  ///< entry of the application list
};

/// The columns that the report shows, left to right.
std::vector<const ReportColumn*> ShownColumns(const CustomReport& report);

/// The folder of the report files below ReportsLocation.
std::filesystem::path CustomReportsFolder(const std::string& reportsLocation);

/// Takes the keys of a report file; what is missing or does not convert stays as it was.
void ReadCustomReport(const std::string& reportsLocation, std::string_view name, CustomReport& report);

/// Writes the report file, replacing one of that name. A name that no file in the folder
/// can have, or a folder that takes no file, loses the report without a message.
void WriteCustomReport(const std::string& reportsLocation, std::string_view name, const CustomReport& report);

/// An extension of three characters gets a "0" in front: calls hold four.
std::string FullExtension(const std::string& extension);

}  // namespace tallix
