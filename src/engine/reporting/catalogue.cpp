#include "reporting/catalogue.h"

#include <algorithm>

#include "compat/file_list.h"
#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kDataSection = "Data";
constexpr std::string_view kOptionsSection = "Options";
constexpr std::string_view kReportExtension = ".srt";
constexpr std::size_t kPrefixLength = 4;  ///< "STD_" or "CST_"

void ReadSwitch(const IniFile& report, std::string_view section, std::string_view key, bool& flag) {
    Attempt([&] { flag = ToBoolean(report.Read(section, key)); });
}

}  // namespace

void ReportFlags::Read(const IniFile& report) {
    for (std::size_t place = 0; place < kReportColumns.size(); ++place) {
        const PresetColumn& column = kReportColumns[place].preset;
        if (column.key.empty()) continue;
        const bool isOption = column.shownBy == ShownBy::OptionsKey;
        ReadSwitch(report, isOption ? kOptionsSection : kDataSection, column.key, shown_[place]);
    }
    ReadSwitch(report, kDataSection, "Internal", internal_);
    ReadSwitch(report, kDataSection, "Sum", sum_);
    ReadSwitch(report, kOptionsSection, "Hours", hours_);
}

ReportOptions ReadReportOptions(const IniFile& report) {
    ReportOptions options;
    ReadSwitch(report, kOptionsSection, "Extension", options.extension);
    ReadSwitch(report, kOptionsSection, "Account", options.account);
    ReadSwitch(report, kOptionsSection, "Site", options.site);
    ReadSwitch(report, kOptionsSection, "Group", options.group);
    options.title = report.Read(kOptionsSection, "Title");
    options.where = report.Read(kOptionsSection, "Where");
    options.sum = report.Read(kOptionsSection, "Sum");
    Attempt([&] { options.top = ToInteger16(report.Read(kOptionsSection, "Top")); });
    return options;
}

bool CountsDialledNumbers(const ReportFlags& flags, const ReportOptions& options) {
    return flags.Sum() && EqualNoCase(options.sum, kSumOfDialledNumbers);
}

std::filesystem::path PresetReportsFolder(const std::filesystem::path& applicationFolder) {
    return applicationFolder / "Reports" / "Standard";
}

std::filesystem::path PresetReportFile(const std::filesystem::path& applicationFolder,
                                       std::string_view name) {
    return PresetReportsFolder(applicationFolder) / ("STD_" + std::string(name) + ".SRT");
}

std::vector<std::string> ListReports(const std::filesystem::path& folder) {
    std::vector<std::string> names = ListFileNames(folder, kReportExtension);
    std::transform(names.begin(), names.end(), names.begin(), ReportNameOf);
    return names;
}

std::string ReportNameOf(std::string_view fileName) {
    const std::size_t length = Len(fileName);
    const std::size_t cut = kPrefixLength + kReportExtension.size();
    if (length <= cut) return {};
    return std::string(Mid(fileName, kPrefixLength + 1, length - cut));
}

}  // namespace tallix
