// The settings of the Importer service: whether it runs, and the place of each value among the
// comma-separated fields of a line.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "session/application.h"

namespace tallix {

struct ImportedValue {
    std::string_view label;
    std::string_view key;  ///< in the section [Values] of Importer/CSV.ini
};

inline constexpr std::array<ImportedValue, 15> kImportedValues{{
    {"Date:", "Date"},
    {"Time:", "Time"},
    {"Duration:", "Duration"},
    {"Extension:", "Extension"},
    {"Number of Rings:", "NumRings"},
    {"Orig Number:", "OrigNum"},
    {"Dest Number:", "DestNum"},
    {"Internal Flag:", "Internal"},
    {"Error Flag:", "Error"},
    {"Supervision Flag:", "Supervision"},
    {"Speedcall Flag:", "Speedcall"},
    {"Forward Flag:", "Forward"},
    {"Trunk Flag:", "Trunk"},
    {"Account:", "Account"},
    {"Site:", "Site"},
}};

struct ImporterSettings {
    bool enabled = false;     ///< the service runs
    bool createsCsv = false;  ///< the collected lines go to a file of comma-separated values

    /// Places from 1 on, in the order of kImportedValues; "0" for a value that a line lacks.
    std::array<std::string, kImportedValues.size()> places;
};

ImporterSettings LoadImporterSettings(const Application& application);

/// Writes all of them, an empty place as "0", and adds a row to the access log. Without the
/// folder of the Importer the places are lost, and nothing reports it.
void SaveImporterSettings(Application& application, const ImporterSettings& importer);

}  // namespace tallix
