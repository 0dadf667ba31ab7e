#include "costing/cost_computation.h"

#include <string>
#include <vector>

#include "costing/call_pricing.h"
#include "costing/tariff.h"
#include "database/database_scope.h"
#include "database/row_batch.h"
#include "failures/attempt.h"

namespace tallix {
namespace {

/// Prices every call of the set into the batch. A column that the table lacks reads as
/// NULL; without durations no call is priced.
std::int64_t PriceCalls(const ado::Rows& calls, CallPricing& pricing, ado::RowBatch& costs) {
    const ado::Column id = calls.Find("ID");
    const ado::Column duration = calls.Find("Duration");
    const ado::Column number = calls.Find("DestNum");
    if (!duration) return 0;
    std::int64_t priced = 0;
    std::vector<ado::Value> row(2);
    for (const ado::Row call : calls) {
        const std::string_view time = call.Text(duration);
        if (time == kNoDuration) continue;
        row[0] = id ? call.At(id) : ado::Value{};
        row[1] = pricing.Of(time, number ? call.Text(number) : "").text;
        Attempt([&] { costs.Add(row); });
        ++priced;
    }
    return priced;
}

}  // namespace

std::int64_t ComputeCosts(const Session& session, const SettingsStore& settings) {
    const DatabaseScope database = DatabaseScope::TryOpen(session.database);
    Attempt([&] { database.Execute("DELETE FROM tblcostcount"); });
    Tariff tariff(database);
    CallPricing pricing(tariff, PricingUnit(settings.Read(kBillingSetting)));
    std::int64_t priced = 0;
    Attempt([&] {
        const ado::Rows calls =
            database.Query("Select * From tblphonedata WHERE Internal = " + database.Quoted("0"));
        ado::RowBatch costs(database.Connection(), "tblcostcount", {"DataID", "Cost"});
        priced = PriceCalls(calls, pricing, costs);
        costs.Flush();
    });
    return priced;
}

}  // namespace tallix
