#include "session/access_rights.h"

namespace tallix {
namespace {

constexpr char kGranted = '1';

}  // namespace

const std::array<std::string_view, kRights> kRightLabels = {
    "Main Menu > Preset Reports",
    "Main Menu > Custom Reports",
    "Main Menu > Archive",
    "Main Menu > Export",
    "Main Menu > Backup/Restore",
    "Main Menu > Options",
    "Report View > Print Report",
    "Backup > Backup",
    "Backup > Call Data",
    "Backup > RAW Data",
    "Backup > System Options",
    "Restore > Restore",
    "Restore > Call Data",
    "Restore > RAW Data",
    "Restore > System Options",
    "Options > Site Data",
    "Options > Users",
    "Options > Add User",
    "Options > Edit User",
    "Options > Delete User",
    "Options > Extensions",
    "Options > Get From Data",
    "Options > Add Extension",
    "Options > Edit Extension",
    "Options > Delete Extension",
    "Options > Save and Exit",
    "Options > Scheduled Reports",
    "Options > Call Cost Mappings",
    "Options > Call Costings",
    "Options > Custom Mappings",
    "Options > Folders",
    "Options > Groups",
    "Options > Address Book",
    "Options > Compute Costs",
    "Options > System Settings",
    "Options > Report Design",
    "Preset Reports > Destination",
    "Custom Reports > Add New",
    "Custom Reports > Delete",
    "Custom Reports > Save",
    "Custom Reports > Destination",
    "Special > Permissions",
};

bool Allows(std::string_view access, AccessRight right) {
    const auto place = static_cast<std::size_t>(right);
    return place < access.size() && access[place] == kGranted;
}

}  // namespace tallix
