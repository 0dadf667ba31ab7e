// The command line of Tallix_Setup.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

struct SetupOptions {
    bool help = false;
    // Empty where not given: then what is stored counts, and after that the default.
    std::string type;  ///< "1" MySQL, "2" SQL Server, "3" PostgreSQL
    std::string address;
    std::string user;
    std::string password;
    std::string adminPassword;
    std::optional<std::uint64_t> demoCalls;  ///< at most kMostCalls
    std::uint64_t seed = 1;
};

/// A command line that is not understood; the text is one line.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name. Of an option given twice the last
/// counts. Throws UsageError.
SetupOptions ParseSetupOptions(const std::vector<std::string>& arguments);

/// What --help prints.
std::string_view SetupUsage();

}  // namespace tallix
