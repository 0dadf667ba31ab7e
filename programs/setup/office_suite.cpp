#include "setup/office_suite.h"

#include <fmt/format.h>

#include <ostream>
#include <string>
#include <system_error>

#include "reporting/external_applications.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kRoot = "HKLM";
constexpr std::string_view kText = "S";
constexpr std::string_view kProgram = "soffice";
constexpr std::string_view kOtherSoftware = "/opt";

bool HoldsSuite(const fs::path& folder) {
    std::error_code error;
    return fs::exists(folder / kProgram, error);
}

}  // namespace

// Debian's own package, then the makers' packages, which are in a folder per version.
std::vector<fs::path> OfficeFolders() {
    std::vector<fs::path> folders = {"/usr/lib/libreoffice/program"};
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(kOtherSoftware, error)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("libreoffice") || name.starts_with("openoffice")) {
            folders.push_back(entry.path() / "program");
        }
    }
    return folders;
}

void RecordOfficeSuite(const std::vector<fs::path>& folders, const SettingsStore& settings,
                       std::ostream& out) {
    std::string recorded;
    settings.fReadValue(kRoot, kOpenOffice3Key, kOpenOffice3Value, kText, "", recorded);
    if (!recorded.empty()) {
        out << fmt::format("Spreadsheet: {} recorded already\n", recorded);
        return;
    }
    for (const fs::path& folder : folders) {
        if (!HoldsSuite(folder)) continue;
        settings.fWriteValue(kRoot, kOpenOffice3Key, kOpenOffice3Value, kText,
                             folder.string().append(kOpenOffice3Program));
        out << fmt::format("Spreadsheet: {} recorded\n", folder.string());
        return;
    }
}

}  // namespace tallix
