#include "session/access_rights.h"

#include <algorithm>

namespace tallix {
namespace {

constexpr char kGranted = '1';
constexpr char kRefused = '0';

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

AccessRights::AccessRights(std::initializer_list<AccessRight> granted) {
    for (const AccessRight right : granted) Grant(right);
}

AccessRights AccessRights::All() {
    AccessRights all;
    all.granted_.set();
    return all;
}

AccessRights AccessRights::FromText(std::string_view stored) {
    AccessRights rights;
    const std::size_t places = std::min(stored.size(), kRights);
    for (std::size_t place = 0; place < places; ++place) rights.granted_[place] = stored[place] == kGranted;
    return rights;
}

std::string AccessRights::Text() const {
    std::string text(kRights, kRefused);
    for (std::size_t place = 0; place < kRights; ++place) {
        if (granted_[place]) text[place] = kGranted;
    }
    return text;
}

}  // namespace tallix
