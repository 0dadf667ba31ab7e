// The values that live as long as the process: set at start-up and login, read
// everywhere. One object, made in main and passed by reference.
#pragma once

#include <string>

#include "database/database_address.h"
#include "session/access_rights.h"

namespace tallix {

struct Session {
    DatabaseAddress database;
    std::string ReportsLocation;
    std::string DocsLocation;
    std::string Currency;
    std::string Lang;
    std::string CurrentUser;
    AccessRights CurrentAccess;
    bool UseStatsMain = false;
};

}  // namespace tallix
