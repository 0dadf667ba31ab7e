// The permissions of an account, in the order of their places in an access string: 42
// characters, "1" granting and "0" refusing, the first one standing for the first right.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tallix {

enum class AccessRight : std::size_t {
    PresetReports,
    CustomReports,
    Archive,
    Export,
    BackupRestore,
    Options,
    PrintReport,
    Backup,
    BackupCallData,
    BackupRawData,
    BackupSystemOptions,
    Restore,
    RestoreCallData,
    RestoreRawData,
    RestoreSystemOptions,
    SiteData,
    Users,
    AddUser,
    EditUser,
    DeleteUser,
    Extensions,
    GetFromData,
    AddExtension,
    EditExtension,
    DeleteExtension,
    SaveAndExit,
    ScheduledReports,
    CallCostMappings,
    CallCostings,
    CustomMappings,
    Folders,
    Groups,
    AddressBook,
    ComputeCosts,
    SystemSettings,
    ReportDesign,
    PresetReportDestination,
    AddCustomReport,
    DeleteCustomReport,
    SaveCustomReport,
    CustomReportDestination,
    Permissions,  ///< stored and edited like the others; no window asks for it
};

inline constexpr std::size_t kRights = static_cast<std::size_t>(AccessRight::Permissions) + 1;

/// The words by which a permission list shows each right, in their order.
extern const std::array<std::string_view, kRights> kRightLabels;

/// Whether an access string grants the right. One that is too short refuses it.
bool Allows(std::string_view access, AccessRight right);

}  // namespace tallix
