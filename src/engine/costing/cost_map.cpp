#include "costing/cost_map.h"

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr char kCostMap[] = "select * from tblcostmap";
constexpr std::string_view kLocal = "L";
constexpr std::string_view kMapClass = "1";

bool HasOneLetter(const CostMapRow& row) {
    return Len(row.charge) == 1;
}

void UpdateFirstRecord(const DatabaseScope& database) {
    ado::Recordset map = database.Edit(kCostMap);
    map.Collect("CostID", kMapClass);
    map.Update();
}

}  // namespace

std::vector<CostMapRow> LoadCostMap(const Session& session) {
    std::vector<CostMapRow> rows;
    Attempt([&] {
        const DatabaseScope database(session.database);
        for (const ado::Row row : database.Query(kCostMap)) {
            rows.push_back(
                {.area = std::string(row.Text("Carrier")), .charge = std::string(row.Text("Package"))});
        }
    });
    return rows;
}

void AppendAreaCodes(const Session& session, std::vector<CostMapRow>& rows) {
    Attempt([&] {
        const DatabaseScope database(session.database);
        std::size_t charged = 0;
        for (const ado::Row row : database.Query("Select * From tblareaproviders")) {
            rows.push_back({.area = std::string(row.Text("Code")), .charge = {}});
            rows[charged++].charge = kLocal;
        }
    });
}

bool SaveCostMap(const Session& session, const std::vector<CostMapRow>& rows) {
    const DatabaseScope database = DatabaseScope::TryOpen(session.database);
    Attempt([&] { database.Execute("Delete * From tblcostmap"); });
    for (const CostMapRow& row : rows) {
        if (!HasOneLetter(row)) return false;
        Attempt([&] { UpdateFirstRecord(database); });
    }
    return true;
}

}  // namespace tallix
