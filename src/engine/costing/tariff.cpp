#include "costing/tariff.h"

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::size_t kShortestPrefix = 3;

UnitCost ReadStandard(const DatabaseScope& database) {
    UnitCost cost;
    Attempt([&] {
        const ado::Rows rows =
            database.Query("SELECT * FROM tblcosts WHERE Number = " + database.Quoted("Default"));
        if (!rows.IsEmpty()) ReadUnitCost(rows.First().Text("Cost"), cost);
    });
    return cost;
}

}  // namespace

Tariff::Tariff(const DatabaseScope& database)
    : costs_(database, "tblcosts", "Number", "Cost"), standard_(ReadStandard(database)) {}

std::optional<std::string_view> Tariff::Match(std::string_view number) {
    const std::size_t length = Len(number);
    if (length <= kShortestPrefix) return std::nullopt;
    return costs_.Narrow(number, {kShortestPrefix, length - 1});
}

}  // namespace tallix
