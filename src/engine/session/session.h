// The values that live as long as the process: set at start-up and login, read
// everywhere. One object, made in main and passed by reference.
#pragma once

#include <string>

#include "database/database_scope.h"

namespace tallix {

struct Session {
    DatabaseAddress database;
    DatabaseScope DBConn;  ///< open only during an operation
    std::string ReportsLocation;
    std::string DocsLocation;
    std::string Currency;
    std::string Lang;
    std::string CurrentUser;
    std::string CurrentAccess;  ///< 42 characters "1" or "0", one a permission
    bool UseStatsMain = false;
};

}  // namespace tallix
