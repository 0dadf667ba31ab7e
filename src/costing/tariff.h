// The tariff of one run, read once from tblcosts, and the search for the one row that
// prices a number.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "costing/cost_text.h"
#include "foundation/session.h"

namespace tallix {

class Tariff {
public:
    /// Reads the table over the session's open connection. A table that cannot be read
    /// gives an empty tariff.
    explicit Tariff(Session& session);

    /// The cost of the "Default" row; zero where there is none.
    const UnitCost& Standard() const { return standard_; }

    /// The cost text of the one row whose number begins with the first three or more
    /// characters of `number`; nothing when none does or when rows stay tied to the
    /// number's end. This narrows a prefix and is no longest match. The view lives as
    /// long as the tariff.
    std::optional<std::string_view> Match(std::string_view number);
};

}  // namespace tallix
