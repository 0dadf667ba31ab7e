// Fills the row of a call: walks the report's columns in their order and works out the
// text of each cell, from a plain field or by lookups in the name, address book, area,
// provider, country and cost tables.
//
//     RowResolver resolver(context, calls);
//     const std::vector<std::string_view>& cells = resolver.Resolve(call);
//
// This is the inside of the record loop: no cell allocates, none throws in the ordinary
// case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "costing/call_pricing.h"
#include "costing/tariff.h"
#include "database/database_scope.h"
#include "database/prefix_table.h"
#include "host/event_queue.h"
#include "reporting/catalogue.h"
#include "reporting/key_lookup.h"
#include "reporting/report_columns.h"
#include "reporting/report_settings.h"
#include "reporting/site.h"

namespace tallix {

/// What the rows of one run have in common. All of it must outlive the resolver.
struct RowContext {
    const DatabaseScope& database;
    EventQueue& events;  ///< served while the longer tables are read
    const ReportFlags& flags;
    const ReportSettings& settings;
    const Site& site;
    Tariff& tariff;
    std::string_view currency;
    bool dropsShortNumbers = false;  ///< in a count of dialled numbers, those of four characters
};

class RowResolver {
public:
    /// The columns are those of `calls`.
    RowResolver(const RowContext& context, const ado::Rows& calls);

    /// Whether a call is left out of a count of dialled numbers.
    bool IsDropped(ado::Row call) const;

    /// The texts of a call's cells. Fewer than the report has columns when the
    /// address book ends the row early, and for the cost of an internal call. They live
    /// until the next call is resolved.
    const std::vector<std::string_view>& Resolve(ado::Row call);

    /// The sum of the costs shown so far, in pence.
    std::int32_t TotalPence() const { return totalPence_; }

private:
    enum class Next { Cell, EndOfRow };

    struct Step {
        PresetCell cell;
        ado::Column source;
    };

    static std::vector<Step> StepsOf(const RowContext& context, const ado::Rows& calls);

    Next Add(const Step& step, ado::Row call);
    void AddField(std::string_view text) { cells_.push_back(text.empty() ? kBlankCell : text); }
    void AddName(std::string_view extension);
    void AddForward(std::string_view flag);
    void AddNumber(std::string_view number, ado::Row call);
    Next AddArea(ado::Row call);
    void AddCountry(std::string_view number);
    void AddCost(std::string_view id, ado::Row call);
    void AddStoredCost(std::string_view id);
    void AddPricedCost(ado::Row call);
    void AddAmount(std::string_view text, std::int32_t pence);
    void AddToTotal(std::int32_t pence);
    std::string_view AreaName(std::string_view number, std::string_view destNum);
    bool IsOutside(ado::Row call) const;

    const RowContext context_;
    const std::vector<Step> steps_;

    // Columns that rules look at besides the source of their own cell.
    const ado::Column destNum_;
    const ado::Column origNum_;
    const ado::Column internal_;
    const ado::Column duration_;

    KeyLookup names_;
    KeyLookup addressBook_;
    KeyLookup storedCosts_;
    PrefixLookup areas_;
    PrefixLookup countries_;
    CallPricing pricing_;
    std::vector<std::string_view> cells_;
    std::string number_;  ///< what cells_ refers to where a cell is put together
    std::string cost_;
    std::int32_t totalPence_ = 0;
};

}  // namespace tallix
