// The permissions of an account. An account stores them as an access string: 42 characters
// in the order of the rights here, "1" for a granted right and "0" for a refused one.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <string>
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

/// The label of each right in a permission list, in their order.
extern const std::array<std::string_view, kRights> kRightLabels;

/// A set of rights.
class AccessRights {
public:
    AccessRights() = default;
    AccessRights(std::initializer_list<AccessRight> granted);

    static AccessRights All();

    /// Reads an access string. Places that are missing or hold no "1" refuse their rights.
    static AccessRights FromText(std::string_view stored);

    /// The access string.
    std::string Text() const;

    bool Contains(AccessRight right) const { return granted_[Place(right)]; }
    void Grant(AccessRight right) { granted_.set(Place(right)); }
    void Refuse(AccessRight right) { granted_.reset(Place(right)); }

    bool operator==(const AccessRights&) const = default;

private:
    static std::size_t Place(AccessRight right) { return static_cast<std::size_t>(right); }

    std::bitset<kRights> granted_;
};

inline bool Allows(const AccessRights& access, AccessRight right) {
    return access.Contains(right);
}

}  // namespace tallix
