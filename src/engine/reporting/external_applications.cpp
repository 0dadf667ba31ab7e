#include "reporting/external_applications.h"

#include <cstdlib>
#include <optional>

#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kMachineRoot = "HKLM";
constexpr std::string_view kText = "S";
constexpr std::string_view kExcel2010 = "Software\\Microsoft\\Office\\14.0\\Excel\\Installroot";
constexpr std::string_view kExcel2007 = "Software\\Microsoft\\Office\\12.0\\Excel\\Installroot";
constexpr std::string_view kExcel2003 = "Software\\Microsoft\\Office\\11.0\\Excel\\Installroot";
constexpr std::string_view kExcel2000 = "Software\\Microsoft\\Office\\9.0\\Excel\\Installroot";
constexpr std::string_view kOpenOffice2 = "Software\\OpenOffice.org\\UNO";
constexpr std::string_view kNotepad = "Microsoft Notepad";

/// Where the settings name a program's folder.
struct FolderSetting {
    std::string_view path;
    std::string_view name;
};

struct ListRow {
    std::string_view entry;
    FolderSetting folder;
};

// The value name of version 2.0 is misspelt, and the command reads another key than
// "Settings". Installed lists rely on both.
constexpr ListRow kList[] = {
    {"Microsoft Excel 2010", {kExcel2010, "Path"}},
    {"Microsoft Excel 2007", {kExcel2007, "Path"}},
    {"Microsoft Excel 2003", {kExcel2003, "Path"}},
    {"Microsoft Excel 2000", {kExcel2000, "Path"}},
    {"QS Notera V3", {"Software\\Quillmere Software\\Notera\\Settings", "Install Folder"}},
    {"OpenOffice.org 3.0 Calc", {kOpenOffice3Key, kOpenOffice3Value}},
    {"OpenOffice.org 2.0 Calc", {kOpenOffice2, "OepnOffice.org 2.0"}},
};

struct CommandRow {
    std::string_view entry;
    FolderSetting folder;
    std::string_view program;
    std::size_t tail = 0;  ///< characters of the stored value that are not its folder
};

constexpr CommandRow kCommands[] = {
    {"Microsoft Excel 2007", {kExcel2007, "Path"}, "Excel.exe"},
    {"Microsoft Excel 2003", {kExcel2003, "Path"}, "Excel.exe"},
    {"Microsoft Excel 2000", {kExcel2000, "Path"}, "Excel.exe"},
    {"Notera V3", {"Software\\Quillmere Software\\Notera\\Setting", "Install Folder"}, "Notera.exe"},
    {"OpenOffice.org 3.0 Calc",
     {kOpenOffice3Key, kOpenOffice3Value},
     "scalc.exe",
     kOpenOffice3Program.size()},
    {"OpenOffice.org 2.0 Calc", {kOpenOffice2, "OpenOffice.org 2.0"}, "scalc.exe"},
};

std::string Stored(const SettingsStore& settings, const FolderSetting& setting) {
    std::string value;
    settings.fReadValue(kMachineRoot, setting.path, setting.name, kText, "", value);
    return value;
}

/// Nothing where the value is shorter than what is cut off: a command without a folder
/// would start another program.
std::optional<std::string> FolderOf(const SettingsStore& settings, const CommandRow& row) {
    const std::string value = Stored(settings, row.folder);
    if (Len(value) < row.tail) return {};
    return std::string(Left(value, Len(value) - row.tail));
}

std::string QuotedFile(const Application& application, std::string_view file) {
    return "\"" + application.tempFolder.string() + std::string(file) + "\"";
}

std::string SystemRoot() {
    const char* folder = std::getenv("SystemRoot");
    return folder == nullptr ? "" : folder;
}

}  // namespace

std::vector<std::string> ExternalApplications(const SettingsStore& settings) {
    std::vector<std::string> entries;
    for (const ListRow& row : kList) {
        if (!Stored(settings, row.folder).empty()) entries.emplace_back(row.entry);
    }
    entries.emplace_back(kNotepad);
    return entries;
}

std::string ExternalCommand(const Application& application, std::string_view entry,
                            std::string_view editorFile) {
    if (EqualNoCase(entry, kNotepad)) {
        return SystemRoot() + "\\SYSTEM32\\notepad.exe " + QuotedFile(application, editorFile);
    }
    for (const CommandRow& row : kCommands) {
        if (!EqualNoCase(entry, row.entry)) continue;
        const std::optional<std::string> folder = FolderOf(application.settings, row);
        if (!folder) return "";
        return *folder + "\\" + std::string(row.program) + " " + QuotedFile(application, kCommaTextPath);
    }
    return "";
}

}  // namespace tallix
