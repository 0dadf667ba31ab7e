#include "costing/cost_map.h"

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/database.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr char kCostMap[] = "select * from tblcostmap";
constexpr std::string_view kLocal = "L";
constexpr std::string_view kMapClass = "1";

bool HasOneLetter(const CostMapRow& row) {
    return Len(row.charge) == 1;
}

void TouchFirstRecord(Session& session) {
    ado::Recordset map;
    map.Open(kCostMap, OpenConnection(session));
    map.Collect("CostID", kMapClass);
    map.Update();
}

}  // namespace

std::vector<CostMapRow> LoadCostMap(Session& session) {
    std::vector<CostMapRow> rows;
    Attempt([&] { OpenDatabase(session); });
    Attempt([&] {
        ado::Recordset map;
        map.Open(kCostMap, OpenConnection(session));
        for (std::int64_t i = 1; i <= map.RecordCount(); ++i, map.MoveNext()) {
            rows.push_back(
                {.area = std::string(map.Text("Carrier")), .charge = std::string(map.Text("Package"))});
        }
    });
    CloseDatabase(session);
    return rows;
}

void AppendAreaCodes(Session& session, std::vector<CostMapRow>& rows) {
    Attempt([&] { OpenDatabase(session); });
    Attempt([&] {
        ado::Recordset codes;
        codes.Open("Select * From tblareaproviders", OpenConnection(session));
        for (std::int64_t i = 1; i <= codes.RecordCount(); ++i, codes.MoveNext()) {
            rows.push_back({.area = std::string(codes.Text("Code")), .charge = {}});
            rows[static_cast<std::size_t>(i) - 1].charge = kLocal;
        }
    });
    CloseDatabase(session);
}

bool SaveCostMap(Session& session, const std::vector<CostMapRow>& rows) {
    bool valid = true;
    Attempt([&] { OpenDatabase(session); });
    Attempt([&] { OpenConnection(session).Execute("Delete * From tblcostmap"); });
    for (auto row = rows.begin(); valid && row != rows.end(); ++row) {
        valid = HasOneLetter(*row);
        if (valid) Attempt([&] { TouchFirstRecord(session); });
    }
    CloseDatabase(session);
    return valid;
}

}  // namespace tallix
