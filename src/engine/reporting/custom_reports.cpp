#include "reporting/custom_reports.h"

#include <fmt/format.h>

#include "compat/ini_file.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "platform/whole_file.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kFirstLine = "Tallix Reports Tool - Custom Report - V1.0";
constexpr std::string_view kData = "Data";
constexpr std::string_view kOptions = "Options";
constexpr std::string_view kDestination = "Destination";
constexpr std::size_t kShortExtension = 3;
constexpr mode_t kNewFileMode = 0640;

struct TextKey {
    std::string_view key;
    std::string CustomReport::*value;
};

// In the order of the file, with the options of the duration between the two halves.
constexpr TextKey kFilters[] = {{"Account", &CustomReport::account}, {"Duration", &CustomReport::duration}};
constexpr TextKey kBounds[] = {{"SDate", &CustomReport::startDate},
                               {"EDate", &CustomReport::endDate},
                               {"Extension", &CustomReport::extension}};

struct DurationKey {
    std::string_view key;
    DurationTest test;
};
// Of two that are both on, the first one counts.
constexpr DurationKey kDurationTests[] = {{"Greater", DurationTest::Greater}, {"Less", DurationTest::Less}};

struct DestinationKey {
    std::string_view key;
    Destination destination;
};
constexpr DestinationKey kDestinations[] = {{"Screen", Destination::OnScreen},
                                            {"Printer", Destination::ToPrinter},
                                            {"Application", Destination::InExternalApplication}};
constexpr std::string_view kApplication = "AppName";

std::string_view TextOf(bool value) {
    return value ? "True" : "False";
}

// Either separator would lead out of the folder.
bool IsFileName(std::string_view name) {
    return name.find_first_of(std::string_view("/\\\0\r\n", 5)) == std::string_view::npos;
}

std::filesystem::path FileOf(const std::string& reportsLocation, std::string_view name) {
    return CustomReportsFolder(reportsLocation) / fmt::format("CST_{}.SRT", name);
}

std::string FileText(const CustomReport& report) {
    std::string text;
    const auto line = [&text](std::string_view words) { text.append(words).append("\r\n"); };
    const auto key = [&line](std::string_view name, std::string_view value) {
        line(fmt::format("{}={}", name, value));
    };
    const auto section = [&line](std::string_view name) {
        line("");
        line(fmt::format("[{}]", name));
    };
    line(kFirstLine);
    section(kData);
    for (std::size_t i = 0; i < kCustomFields; ++i)
        key(kCustomColumns[i]->custom.key, TextOf(report.shown[i]));
    section(kOptions);
    for (const TextKey& each : kFilters) key(each.key, report.*each.value);
    for (const DurationKey& each : kDurationTests) key(each.key, TextOf(report.durationTest == each.test));
    for (const TextKey& each : kBounds) key(each.key, report.*each.value);
    section(kDestination);
    for (const auto& each : kDestinations) key(each.key, TextOf(report.destination == each.destination));
    key(kApplication, report.application);
    return text;
}

// A key that does not convert leaves its test as it was.
DurationTest ReadDurationTest(const IniFile& file, DurationTest before) {
    for (const DurationKey& each : kDurationTests) {
        bool isOn = before == each.test;
        Attempt([&] { isOn = ToBoolean(file.Read(kOptions, each.key)); });
        if (isOn) return each.test;
    }
    return DurationTest::None;
}

void ReadOptions(const IniFile& file, CustomReport& report) {
    for (const TextKey& each : kFilters) report.*each.value = file.Read(kOptions, each.key);
    for (const TextKey& each : kBounds) report.*each.value = file.Read(kOptions, each.key);
    report.durationTest = ReadDurationTest(file, report.durationTest);
}

void ReadDestination(const IniFile& file, CustomReport& report) {
    for (const DestinationKey& each : kDestinations) {
        Attempt([&] {
            if (ToBoolean(file.Read(kDestination, each.key))) report.destination = each.destination;
        });
    }
    report.application = file.Read(kDestination, kApplication);
}

}  // namespace

std::vector<const ReportColumn*> ShownColumns(const CustomReport& report) {
    std::vector<const ReportColumn*> columns;
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        if (report.shown[i]) columns.push_back(kCustomColumns[i]);
    }
    return columns;
}

std::filesystem::path CustomReportsFolder(const std::string& reportsLocation) {
    return ToNativePath(reportsLocation + "\\Reports");
}

void ReadCustomReport(const std::string& reportsLocation, std::string_view name, CustomReport& report) {
    const IniFile file(FindIgnoringCase(FileOf(reportsLocation, name)));
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        Attempt([&] { report.shown[i] = ToBoolean(file.Read(kData, kCustomColumns[i]->custom.key)); });
    }
    ReadOptions(file, report);
    ReadDestination(file, report);
}

void WriteCustomReport(const std::string& reportsLocation, std::string_view name,
                       const CustomReport& report) {
    if (!IsFileName(name)) return;
    RewriteWholeFile(FindIgnoringCase(FileOf(reportsLocation, name)), kNewFileMode,
                     [&](const std::string&) { return FileText(report); });
}

std::string FullExtension(const std::string& extension) {
    return Len(extension) == kShortExtension ? "0" + extension : extension;
}

}  // namespace tallix
