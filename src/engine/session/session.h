// The values that live as long as the process: set at start-up and login, read
// everywhere. One object, made in main and passed by reference.
#pragma once

#include <memory>
#include <string>

#include "database/connection.h"

namespace tallix {

struct Session {
    std::string DBType;  ///< "1" MySQL, "2" SQL Server, "3" PostgreSQL
    std::string DBIP;
    std::string SQLUser;
    std::string SQLPass;
    std::string StrQuote = "\"";              ///< delimiter of string literals
    std::string IdQuote;                      ///< delimiter of a quoted column name, set at every connect
    std::unique_ptr<ado::Connection> DBConn;  ///< present only during an operation
    std::string ReportsLocation;
    std::string DocsLocation;
    std::string Currency;
    std::string Lang;
    std::string CurrentUser;
    std::string CurrentAccess;  ///< 42 characters "1" or "0", one a permission
    bool UseStatsMain = false;
};

}  // namespace tallix
