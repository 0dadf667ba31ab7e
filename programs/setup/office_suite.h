// The office suite that the machine may have, recorded where the Reports Tool looks for
// OpenOffice.org 3.0, so that its spreadsheet is among the external applications.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

#include "settings/settings_store.h"

namespace tallix {

/// The folders in which LibreOffice and its kin install their programs.
std::vector<std::filesystem::path> OfficeFolders();

/// Records the first of the folders that holds the suite and says so; says nothing where
/// none does. What is recorded already stays.
void RecordOfficeSuite(const std::vector<std::filesystem::path>& folders, const SettingsStore& settings,
                       std::ostream& out);

}  // namespace tallix
