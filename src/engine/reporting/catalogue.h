// Reports are files of keys: a report differs from another only by its file, and
// adding a file adds a report. This module finds the files and reads their keys.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "compat/ini_file.h"
#include "reporting/report_columns.h"

namespace tallix {

/// The switches of the report that ran last. They outlive a run: a key that a file
/// omits keeps the value of the report before, so one object serves a whole process.
class ReportFlags {
public:
    /// Whether the report shows the column at this place of kReportColumns.
    bool Shows(std::size_t column) const { return shown_[column]; }

    bool Internal() const { return internal_; }  ///< the report is one of internal calls
    bool Sum() const { return sum_; }            ///< the option `Sum` counts
    bool Hours() const { return hours_; }        ///< the office hours count

    /// Takes the switches of a report file; what does not convert stays as it was.
    void Read(const IniFile& report);

private:
    std::array<bool, kReportColumns.size()> shown_{};
    bool internal_ = false;
    bool sum_ = false;
    bool hours_ = false;
};

/// The keys of section "Options" that a run reads anew each time.
struct ReportOptions {
    bool extension = false;
    bool account = false;
    bool site = false;
    bool group = false;
    std::string title{};
    std::string where{};
    std::string sum{};
    std::int16_t top = 0;  ///< the greatest number of records looked at; 0 for all
};

ReportOptions ReadReportOptions(const IniFile& report);

/// The value of `Sum` that counts dialled numbers.
inline constexpr std::string_view kSumOfDialledNumbers = "DestNumC";

/// Whether the report is a count of dialled numbers.
bool CountsDialledNumbers(const ReportFlags& flags, const ReportOptions& options);

/// The folder of the preset reports below the application folder, and the file of one.
std::filesystem::path PresetReportsFolder(const std::filesystem::path& applicationFolder);
std::filesystem::path PresetReportFile(const std::filesystem::path& applicationFolder, std::string_view name);

/// The names of the report files ("*.srt" in any case) of a folder, in the order of
/// their file names: each file name without its first four and last four characters,
/// whatever those are. A folder that cannot be read has none.
std::vector<std::string> ListReports(const std::filesystem::path& folder);

/// The report's name in a file name such as "STD_All Calls.SRT".
std::string ReportNameOf(std::string_view fileName);

}  // namespace tallix
