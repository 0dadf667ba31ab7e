// The settings of the pages before and after a report.
#pragma once

#include <string>

#include "session/application.h"

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
    bool generatedBy = false;  ///< stored, without effect on the page
    bool notes = false;        ///< the word "Notes:" on the back page
};

CoverSettings LoadCoverSettings(const SettingsStore& settings);

/// Stores the settings and adds a row to the access log. An empty title text is stored as a
/// single blank. Throws DatabaseError where the log takes no row; the settings are then stored.
void SaveCoverSettings(Application& application, const CoverSettings& covers);

}  // namespace tallix
