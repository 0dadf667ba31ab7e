#include "reporting/cover_settings.h"

#include "database/database_scope.h"
#include "session/access_log.h"

namespace tallix {

namespace {

constexpr std::string_view kTitleText = "CTitleText";
constexpr std::string_view kOn = "1";
constexpr std::string_view kOff = "0";
constexpr std::string_view kNoTitle = " ";

struct Switch {
    std::string_view key;
    bool CoverSettings::*value;
};

constexpr Switch kSwitches[] = {
    {"CCover", &CoverSettings::cover},       {"BBacking", &CoverSettings::backing},
    {"CTitle", &CoverSettings::customTitle}, {"CArt", &CoverSettings::artwork},
    {"CLogo", &CoverSettings::logo},         {"CDate", &CoverSettings::date},
    {"CTime", &CoverSettings::time},         {"BGen", &CoverSettings::generatedBy},
    {"BNote", &CoverSettings::notes},
};

}  // namespace

CoverSettings LoadCoverSettings(const SettingsStore& settings) {
    CoverSettings covers;
    for (const auto& [key, value] : kSwitches) covers.*value = settings.Read(key) == kOn;
    covers.titleText = settings.Read(kTitleText);
    return covers;
}

void SaveCoverSettings(Application& application, const CoverSettings& covers) {
    const SettingsStore& settings = application.settings;
    for (const auto& [key, value] : kSwitches) settings.Write(key, covers.*value ? kOn : kOff);
    settings.Write(kTitleText, covers.titleText.empty() ? kNoTitle : covers.titleText);
    const DatabaseScope database(application.session.database);
    WriteLog(database, application.session, application.clock, "Saved Report Covers");
}

}  // namespace tallix
