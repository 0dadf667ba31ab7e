// What the main menu offers, whichever window shows it.
#pragma once

#include <array>
#include <string_view>

#include "session/access_rights.h"
#include "toolkit/form_names.h"

namespace tallix {

/// An entry of the main menu, which shows where its right is granted.
struct MenuEntry {
    AccessRight right;
    std::string_view label;
    std::string_view tooltip;
    std::string_view form;     ///< the window that it opens
    std::string_view picture;  ///< the name of its pictures, plain and for the hover
};

/// In the order of the menu, which is also that of the entry colours.
inline constexpr std::array<MenuEntry, 6> kMenuEntries = {{
    {AccessRight::PresetReports, "Preset Reports", "Click here for preset reports", kPresetReportsForm,
     "preset_reports"},
    {AccessRight::CustomReports, "Custom Reports", "Click here for custom reports", kCustomReportsForm,
     "custom_reports"},
    {AccessRight::Archive, "Archive", "Click here for archiving", kArchiveForm, "archive"},
    {AccessRight::Export, "Export", "", kCoverPagesForm, "export"},
    {AccessRight::BackupRestore, "Backup/Restore", "Click here to backup/restore", kBackupForm,
     "backup_restore"},
    {AccessRight::Options, "Options", "Click here for options", kOptionsForm, "options"},
}};

}  // namespace tallix
