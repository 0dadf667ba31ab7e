#include "costing/costings.h"

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "text/text_lines.h"

namespace tallix {
namespace {

constexpr std::string_view kStandardNumber = "Default";
constexpr std::string_view kTariffClass = "99";
constexpr std::string_view kStandardClass = "21";
constexpr char kAllCosts[] = "select * from tblcosts";

enum FileField : std::size_t { kDescription, kNumber, kPrice };

void ReadTariff(const DatabaseScope& database, Costings& costings) {
    for (const ado::Row row : database.Query(kAllCosts)) {
        const std::string_view number = row.Text("Number");
        const std::string_view cost = row.Text("Cost");
        if (number == kStandardNumber) {
            costings.standardCost = cost;
        } else {
            costings.rows.push_back({std::string(number), std::string(cost)});
        }
    }
}

void AddRow(ado::Recordset& costs, const TariffRow& row, std::string_view costClass) {
    costs.AddNew();
    costs.Collect("Number", row.number);
    if (row.cost) costs.Collect("Cost", *row.cost);
    costs.Collect("CostID", costClass);
    costs.Update();
}

void WriteTariff(const DatabaseScope& database, const Costings& costings) {
    Attempt([&] { database.Execute("DELETE FROM tblcosts"); });
    Attempt([&] {
        ado::Recordset costs = database.Edit(kAllCosts);
        for (const TariffRow& row : costings.rows) Attempt([&] { AddRow(costs, row, kTariffClass); });
        AddRow(costs, {std::string(kStandardNumber), costings.standardCost}, kStandardClass);
    });
}

std::vector<std::string> Fields(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t comma = line.find(','); comma != std::string::npos; comma = line.find(',', start)) {
        fields.push_back(line.substr(start, comma - start));
        start = comma + 1;
    }
    fields.push_back(line.substr(start));
    return fields;
}

}  // namespace

Costings LoadCostings(const Session& session, const SettingsStore& settings) {
    Costings costings;
    Attempt([&] { ReadTariff(DatabaseScope(session.database), costings); });
    costings.unit = ShownUnit(settings.Read(kBillingSetting));
    return costings;
}

void SaveCostings(const Session& session, const SettingsStore& settings, const Costings& costings) {
    WriteTariff(DatabaseScope::TryOpen(session.database), costings);
    settings.Write(kBillingSetting, costings.unit == BillingUnit::Second ? kSecondText : kMinuteText);
}

void AppendCostingFile(const std::filesystem::path& file, std::vector<TariffRow>& rows) {
    TextLines lines(file);
    std::size_t place = 0;  // counted from 1: the first line's cost has no row
    for (const std::string* line = lines.Next(); line != nullptr; line = lines.Next(), ++place) {
        const std::vector<std::string> fields = Fields(*line);
        if (fields.size() > kNumber) rows.push_back({.number = fields[kNumber], .cost = {}});
        if (fields.size() > kPrice && place > 0 && place <= rows.size()) {
            TariffRow& row = rows[place - 1];
            if (!row.cost) row.cost = fields[kPrice];
        }
    }
}

}  // namespace tallix
