// The settings of the pages before and behind a report.
#pragma once

#include <string>

#include "settings/settings_store.h"

namespace tallix {

struct CoverSettings {
    bool cover = false;        ///< write the cover
    bool backing = false;      ///< write the back page
    bool customTitle = false;  ///< `titleText` in place of the report's name
    std::string titleText{};
    bool artwork = false;  ///< large logo in the cover's middle
    bool logo = false;     ///< logo at the cover's top
    bool date = false;
    bool time = false;
    bool generatedBy = false;  ///< kept, and without effect on the page
    bool notes = false;        ///< the word "Notes:" on the back page
};

CoverSettings LoadCoverSettings(const SettingsStore& settings);

/// An empty title text is stored as a single blank.
void SaveCoverSettings(const SettingsStore& settings, const CoverSettings& covers);

}  // namespace tallix
