// The figures that the statistics menu shows.
#pragma once

#include <cstdint>

#include "database/database_scope.h"

namespace tallix {

/// The calls that reports are made from. They are fetched once; they and their connection
/// stay open for as long as this lives.
class CallStatistics {
public:
    /// Throws DatabaseError.
    explicit CallStatistics(const DatabaseAddress& address);

    std::int64_t TotalCalls() const { return calls_.RecordCount(); }

private:
    DatabaseScope database_;
    ado::Recordset calls_;
};

}  // namespace tallix
