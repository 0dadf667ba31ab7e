// The tariff as it is edited: one standard cost, rows of number prefixes with their cost a
// billing unit, and the unit. Saving rewrites the whole table. Everything here is in
// continue-on-error mode: what the database refuses is passed over and nothing is told.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "session/session.h"
#include "settings/settings_store.h"

namespace tallix {

/// The cells of a tariff row: destination, cost, and whatever an import hung behind them,
/// which is neither shown nor saved. A row may lack its cost.
using TariffRow = std::vector<std::string>;

struct Costings {
    std::string standardCost;  ///< pence a unit as typed, such as "1.50"
    std::vector<TariffRow> rows;
    bool perSecond = false;  ///< the billing unit is the second, else the minute
};

inline constexpr std::string_view kNoStandardCost = "0.00";  ///< of a tariff that is begun anew

/// Reads the table in its stored order, and the billing unit.
Costings LoadCostings(Session& session, const SettingsStore& settings);

/// Replaces the table and stores the billing unit. No transaction holds the two halves of
/// it together: a failure behind the deletion leaves what was stored until then.
void SaveCostings(Session& session, const SettingsStore& settings, const Costings& costings);

/// Appends the entries of a costing file: lines of description, number and cost between
/// commas. The cost of a line goes to the row at the place of the line before it, counted
/// from the top of the list, so that the first line's cost is dropped and the last row
/// gets none. A file that cannot be read has no entries.
void AppendCostingFile(const std::filesystem::path& file, std::vector<TariffRow>& rows);

}  // namespace tallix
