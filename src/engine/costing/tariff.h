// The tariff of one run, read once from tblcosts, and the search for the one row that
// prices a number.
#pragma once

#include <optional>
#include <string_view>

#include "costing/cost_text.h"
#include "database/database_scope.h"
#include "database/prefix_table.h"
#include "session/session.h"

namespace tallix {

class Tariff {
public:
    /// Reads the table. A table that cannot be read gives an empty tariff. `database` must
    /// outlive the tariff: numbers with other characters than digits are looked up by the
    /// server.
    explicit Tariff(const DatabaseScope& database);

    /// The cost of the "Default" row; zero where there is none.
    const UnitCost& Standard() const { return standard_; }

    /// The cost text of the one row whose number begins with the first three or more
    /// characters of `number`; nothing when none does or when rows stay tied. The prefix
    /// must be decided before the number's end: its last character is never looked at, so
    /// that numbers of three characters and less have no match. This narrows a prefix; it
    /// is not a longest match. The view lives as long as the tariff.
    std::optional<std::string_view> Match(std::string_view number);

private:
    PrefixLookup costs_;
    UnitCost standard_;
};

}  // namespace tallix
