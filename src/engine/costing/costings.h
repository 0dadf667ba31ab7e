// The tariff as it is edited: one standard cost, rows of number prefixes with their cost per
// billing unit, and the unit. Saving rewrites the whole table. All functions work in
// continue-on-error mode: what the database refuses is passed over and not reported.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "costing/billing_unit.h"
#include "session/session.h"
#include "settings/settings_store.h"

namespace tallix {

struct TariffRow {
    std::string number;               ///< prefix of the numbers that the row prices
    std::optional<std::string> cost;  ///< pence per unit as typed; an import may leave a row without one

    friend bool operator==(const TariffRow&, const TariffRow&) = default;
};

struct Costings {
    std::string standardCost;  ///< pence per unit as typed, such as "1.50"
    std::vector<TariffRow> rows;
    BillingUnit unit = BillingUnit::Minute;
};

inline constexpr std::string_view kNoStandardCost = "0.00";  ///< of a new tariff

/// Reads the table in its stored order, and the billing unit.
Costings LoadCostings(const Session& session, const SettingsStore& settings);

/// Replaces the table and stores the billing unit. Deleting and writing are not one
/// transaction: a failure after the deletion leaves the rows that were written until then.
/// A row without a cost is stored without one.
void SaveCostings(const Session& session, const SettingsStore& settings, const Costings& costings);

/// Appends the entries of a costing file: lines of description, number and cost between
/// commas. The cost of a line goes to the row at the place of the line before it, counted
/// from the top of the list: the first line's cost is dropped and the last row gets none. A
/// row that has a cost keeps it. A file that cannot be read has no entries.
void AppendCostingFile(const std::filesystem::path& file, std::vector<TariffRow>& rows);

}  // namespace tallix
