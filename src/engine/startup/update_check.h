// Asks the maker's web server, once for each load of the main window, whether a newer
// version is out, and words the answer as the window's notice. Whatever goes wrong on
// the way gives the answer of an up-to-date program: the check never bothers anybody.
//
// The addresses are those of section [Web] in Site.ini in the application folder, keys
// Manifest and Site; without them names are used that lead nowhere.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/prompts.h"
#include "session/application.h"

namespace tallix {

/// The file in the application folder that holds the manifest while it is read. After a
/// failure it stays until the program is left. One spelling everywhere: file
/// names here are case-sensitive.
inline constexpr std::string_view kManifestCopy = "Temp.dat";

/// What the main window shows below its menu.
struct UpdateNotice {
    std::string_view text;
    Colour colour;
    bool newer = false;  ///< a click on the notice opens the maker's web site
};

/// Whether an administrator's "no updates" counts. The statistics window does not ask.
enum class NoUpdatesSetting { Heeded, Ignored };

/// Fetches the manifest and compares. Returns when the server has answered, or after ten
/// seconds; no events are served meanwhile.
UpdateNotice CheckForUpdate(const Application& application,
                            NoUpdatesSetting setting = NoUpdatesSetting::Heeded);

/// Whether a manifest's first line names a newer version. The three numbers are cut out
/// at places that fit numbers of one digit, the minor one with what follows it, and each
/// is compared on its own: "1.4.6" has the minor number 5 (4.6, rounded), and "1.9.0" is
/// newer than version 2.0.0. A major number of 0 is never newer. Throws ConversionError
/// for a line that has not three numbers at those places.
bool NamesNewerVersion(std::string_view line, const Version& own);

/// The maker's web site, for the desktop to open.
std::string MakerSite(const std::filesystem::path& applicationFolder);

}  // namespace tallix
