// The settings and the site that shape a report, read once at the start of a run.
#pragma once

#include <string>

#include "settings/settings_store.h"

namespace tallix {

/// Where the name of a number comes from: the setting `Providers`.
enum class NumberTable { Unset, Areas, Providers };

/// The four colours of the coloured layout, as "#RRGGBB"; empty where the setting does
/// not convert.
struct ReportColours {
    std::string banner;    ///< rptTC
    std::string heads;     ///< rptTHC
    std::string shading;   ///< rptTDC
    std::string totalBar;  ///< rptTBC
};

/// "#0080FF" from nine digits rrrgggbbb. Throws ConversionError.
std::string HtmlColour(const std::string& nineDigits);

struct ReportSettings {
    NumberTable numbers = NumberTable::Unset;
    bool coloured = false;  ///< the layout that `V1Reports` "1" selects
    ReportColours colours{};
    std::string alignment{};  ///< "Left", "Center" or "Right"
    bool areaCode = false;    ///< short numbers are shown after the site's dialling code
    bool storedCosts = true;
    std::string billing{};
    std::string timeOpen{};
    std::string timeClosed{};
};

ReportSettings ReadReportSettings(const SettingsStore& settings);

}  // namespace tallix
