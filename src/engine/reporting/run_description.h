// One pipeline makes every report. A run is described by what a person or a schedule
// asked for (RunInputs) and by the rules in which its kind differs from the others
// (RunRules), which are data.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tallix {

/// The entry of the site and group lists that stands for no choice.
inline constexpr std::string_view kAll = "ALL";

/// The filter values of a run, as texts; an empty text is no filter.
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

enum class QueryRules { Preset, Unattended, Custom };

enum class TimeRule {
    BothBounds,  ///< applies when both times are given; each bound is exclusive
    Schedule,    ///< applies when either is given; a missing end keeps nothing
};

/// What happens when the statement gives no records.
enum class EmptyResult { Stop, CloseThePage };

struct RunRules {
    QueryRules query;
    TimeRule time;
    EmptyResult empty;
    bool commaTextOnly;              ///< whatever the destination
    bool dropsBlankNumbers;          ///< records without a dialled number are passed over
    bool honoursTop;                 ///< the key `Top` bounds the records looked at
    bool writesTitle;                ///< the key `Title` gives a line above the table
    std::string_view generatedOn;    ///< opening of the date line in comma text
    bool showsSeconds;               ///< in the date line of comma text
    std::string_view fixedCurrency;  ///< in place of the session's; empty for that
    bool writesCovers;               ///< cover and back page, where the settings have them on
    bool logsTheRun;                 ///< a finished page gives a row in the access log
};

/// The preset report of a person at the screen.
inline constexpr RunRules kPresetRules = {
    .query = QueryRules::Preset,
    .time = TimeRule::BothBounds,
    .empty = EmptyResult::Stop,
    .commaTextOnly = false,
    .dropsBlankNumbers = true,
    .honoursTop = true,
    .writesTitle = true,
    .generatedOn = "Generated On:",
    .showsSeconds = false,
    .fixedCurrency = "",
    .writesCovers = true,
    .logsTheRun = true,
};

/// The scheduled report with nobody at the screen.
inline constexpr RunRules kUnattendedRules = {
    .query = QueryRules::Unattended,
    .time = TimeRule::Schedule,
    .empty = EmptyResult::CloseThePage,
    .commaTextOnly = true,
    .dropsBlankNumbers = false,
    .honoursTop = false,
    .writesTitle = false,
    .generatedOn = "Generated On: ",
    .showsSeconds = true,
    .fixedCurrency = "£",
    .writesCovers = false,
    .logsTheRun = false,
};

/// The custom report of a person at the screen. Its filters are part of its rows.
inline constexpr RunRules kCustomRules = {
    .query = QueryRules::Custom,
    .time = TimeRule::BothBounds,
    .empty = EmptyResult::Stop,
    .commaTextOnly = false,
    .dropsBlankNumbers = false,
    .honoursTop = false,
    .writesTitle = false,
    .generatedOn = "Generated On:",
    .showsSeconds = false,
    .fixedCurrency = "",
    .writesCovers = false,
    .logsTheRun = true,
};

struct CustomReport;

struct RunDescription {
    std::string reportName;            ///< in titles and in the log
    std::filesystem::path reportFile;  ///< the file of keys
    RunInputs inputs{};
    bool commaText = false;         ///< for an application that opens comma text
    bool demandsExtension = false;  ///< without a numeric extension the run is refused
    bool demandsAccount = false;    ///< the same for the account code
    bool drawsGraph = false;        ///< a bar chart ends the page
    const RunRules& rules;
    const CustomReport* custom = nullptr;  ///< in place of the file of keys; must outlive the run
};

}  // namespace tallix
