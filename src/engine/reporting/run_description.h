// What a run is asked to do. Every kind of run is an alternative of RunKind, and one
// pipeline (reporting/report_run.h) makes them all. A new kind is a new alternative here
// and an overload of MakeContent in reporting/report_content.cpp.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>

#include "reporting/catalogue.h"
#include "reporting/custom_reports.h"

namespace tallix {

/// The entry of the site and group lists that means no choice.
inline constexpr std::string_view kAll = "ALL";

/// The filter values of a run, as texts; an empty text does not filter.
struct RunInputs {
    std::string extension{};
    std::string account{};
    std::string site{};   ///< "ALL" or a site id
    std::string group{};  ///< "ALL" or a group name
    std::string startDate{};
    std::string endDate{};
    std::string timeFrom{};
    std::string timeTo{};
};

enum class PageOutput { Html, CommaText };

/// A preset report of a person at the screen.
struct PresetRun {
    ReportFlags& flags;                ///< of the process; must outlive the run
    std::filesystem::path reportFile;  ///< the file of keys
    RunInputs inputs{};
    PageOutput output = PageOutput::Html;
    bool demandsExtension = false;  ///< without a numeric extension the run is refused
    bool demandsAccount = false;    ///< the same for the account code
    bool drawsGraph = false;        ///< a bar chart ends the page
};

/// A scheduled report with nobody at the screen. It is always comma text.
struct UnattendedRun {
    ReportFlags& flags;
    std::filesystem::path reportFile;
    RunInputs inputs{};
};

/// A custom report of a person at the screen. Its filters are part of the report.
struct CustomRun {
    CustomReport report;
};

using RunKind = std::variant<PresetRun, UnattendedRun, CustomRun>;

struct RunDescription {
    std::string reportName;  ///< in titles and in the log
    RunKind kind;
};

}  // namespace tallix
