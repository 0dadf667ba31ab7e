// The applications that a report can be opened in, as comma text: which of them a
// person is offered, and the command line that starts each.
//
// The list and the commands are two tables that differ in places, and neither is derived
// from the other: each is a contract with the versions of these programs in use.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "session/application.h"

namespace tallix {

/// Where the folder of OpenOffice.org 3.0 is found under "HKLM". The value names the
/// program after the folder, and the command cuts that off. Related office suites record
/// themselves in the same place.
inline constexpr std::string_view kOpenOffice3Key = "Software\\OpenOffice.org\\OpenOffice.org\\3.0";
inline constexpr std::string_view kOpenOffice3Value = "Path";
inline constexpr std::string_view kOpenOffice3Program = "\\soffice.exe";

/// The entries of the application list, in their order: those whose folder the
/// settings name, and the text editor, which is always there.
std::vector<std::string> ExternalApplications(const SettingsStore& settings);

/// The comma text of a run, below the folder for working files.
inline constexpr std::string_view kCommaTextPath = "\\rpt.csv";

/// The command line that opens the comma text in the application of an entry, with
/// "\" between folders and the file between double quotes. Empty for an entry that has
/// no command. `editorFile` is what the text editor gets in place of kCommaTextPath.
std::string ExternalCommand(const Application& application, std::string_view entry,
                            std::string_view editorFile = kCommaTextPath);

}  // namespace tallix
