#include "costing/cost_computation.h"

#include <string>
#include <vector>

#include "costing/call_pricing.h"
#include "costing/tariff.h"
#include "database/recordset.h"
#include "database/row_batch.h"
#include "failures/attempt.h"
#include "session/database.h"

namespace tallix {
namespace {

/// Prices every call of the set into the batch. A column that the table lacks reads as
/// NULL; without durations no call is priced.
std::int64_t PriceCalls(ado::Recordset& calls, CallPricing& pricing, ado::RowBatch& costs) {
    const ado::Column id = calls.Find("ID");
    const ado::Column duration = calls.Find("Duration");
    const ado::Column number = calls.Find("DestNum");
    if (!duration) return 0;
    std::int64_t priced = 0;
    std::vector<ado::Value> row(2);
    for (std::int64_t i = 1; i <= calls.RecordCount(); ++i, calls.MoveNext()) {
        const std::string_view time = calls.Text(duration);
        if (time == kNoDuration) continue;
        row[0] = id ? calls.At(id) : ado::Value{};
        row[1] = pricing.Of(time, number ? calls.Text(number) : "").text;
        Attempt([&] { costs.Add(row); });
        ++priced;
    }
    return priced;
}

}  // namespace

std::int64_t ComputeCosts(Session& session, const SettingsStore& settings) {
    std::int64_t priced = 0;
    Attempt([&] { OpenDatabase(session); });
    Attempt([&] { OpenConnection(session).Execute("DELETE FROM tblcostcount"); });
    Tariff tariff(session);
    CallPricing pricing(tariff, PricingUnit(settings.Read(kBillingSetting)));
    Attempt([&] {
        ado::Recordset calls;
        calls.Open("Select * From tblphonedata WHERE Internal = " + Quoted(session, "0"),
                   OpenConnection(session));
        ado::RowBatch costs(OpenConnection(session), "tblcostcount", {"DataID", "Cost"});
        priced = PriceCalls(calls, pricing, costs);
        costs.Flush();
    });
    CloseDatabase(session);
    return priced;
}

}  // namespace tallix
