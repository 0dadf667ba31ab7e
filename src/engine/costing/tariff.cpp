#include "costing/tariff.h"

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/database.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::size_t kShortestPrefix = 3;

UnitCost ReadStandard(Session& session) {
    UnitCost cost;
    Attempt([&] {
        ado::Recordset row;
        row.Open("SELECT * FROM tblcosts WHERE Number = " + Quoted(session, "Default"),
                 OpenConnection(session));
        if (row.RecordCount() > 0) ReadUnitCost(row.Text("Cost"), cost);
    });
    return cost;
}

}  // namespace

Tariff::Tariff(Session& session)
    : costs_(session, "tblcosts", "Number", "Cost"), standard_(ReadStandard(session)) {}

std::optional<std::string_view> Tariff::Match(std::string_view number) {
    const std::size_t length = Len(number);
    if (length <= kShortestPrefix) return std::nullopt;
    return costs_.Narrow(number, {kShortestPrefix, length - 1});
}

}  // namespace tallix
