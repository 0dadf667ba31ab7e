#include "setup/demo_data.h"

#include <fmt/format.h>

#include <array>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "database/recordset.h"
#include "database/row_batch.h"
#include "setup/demo_calls.h"
#include "setup/demo_company.h"
#include "setup/table_rows.h"

namespace tallix {
namespace {

// Class marks of the tariff's rows.
constexpr const char* kTariffRow = "99";
constexpr const char* kDefaultRow = "21";
constexpr const char* kStandardCost = "1.20";
constexpr std::size_t kShortestTariffNumber = 3;

struct CallColumn {
    const char* name;
    std::string Call::*value;
};

constexpr CallColumn kCallColumns[] = {
    {"Date", &Call::date},           {"Time", &Call::time},
    {"Duration", &Call::duration},   {"Extension", &Call::extension},
    {"NumRings", &Call::numRings},   {"OrigNum", &Call::origNum},
    {"DestNum", &Call::destNum},     {"Internal", &Call::internal},
    {"Error", &Call::error},         {"Supervision", &Call::supervision},
    {"Speedcall", &Call::speedcall}, {"Forward", &Call::forward},
    {"Trunk", &Call::trunk},         {"Account", &Call::account},
    {"Site", &Call::site},
};

std::string Text(std::string_view view) {
    return std::string(view);
}

TableRows SiteRows() {
    TableRows rows{
        "tblsite",
        {"ID", "Name", "Email", "Addy1", "Addy2", "Addy3", "Addy4", "Postcode", "Area", "VM", "SwitchIP",
         "SwitchPort", "SwitchMapping", "SystemCode", "3PTName", "3PTUser", "3PTPass", "3PTDatabase"},
        {}};
    for (const DemoSite& site : DemoSites()) {
        std::vector<std::string> row;
        for (const std::string_view text :
             {site.id, site.name, site.email, site.address[0], site.address[1], site.address[2],
              site.address[3], site.postcode, site.area, site.voicemail, site.switchIp, site.switchPort,
              site.mapping, site.systemCode, std::string_view(), std::string_view(), std::string_view(),
              std::string_view("0")}) {
            row.emplace_back(text);
        }
        rows.rows.push_back(std::move(row));
    }
    return rows;
}

TableRows ExtensionRows() {
    TableRows rows{"tblextensions", {"ExtensionNo", "Name"}, {}};
    for (const DemoExtension& extension : DemoExtensions()) {
        rows.rows.push_back({extension.number, Text(extension.name)});
    }
    return rows;
}

TableRows GroupNameRows() {
    TableRows rows{"tblgroupnames", {"Name"}, {}};
    for (const DemoGroup& group : DemoGroups()) rows.rows.push_back({Text(group.name)});
    return rows;
}

// Reports read the map against the names' own keys, which the server gives.
TableRows GroupMapRows(ado::Connection& connection) {
    std::map<std::string, std::string, std::less<>> ids;
    ado::Recordset names;
    names.Open("SELECT * FROM tblgroupnames", connection);
    for (std::int64_t i = 1; i <= names.RecordCount(); ++i, names.MoveNext()) {
        ids.emplace(names.Text("Name"), names.Text("ID"));
    }
    TableRows rows{"tblgroupmap", {"GroupID", "Extension"}, {}};
    const std::vector<DemoExtension> extensions = DemoExtensions();
    for (const DemoGroup& group : DemoGroups()) {
        const auto id = ids.find(group.name);
        if (id == ids.end()) continue;
        for (const int member : group.members) rows.rows.push_back({id->second, extensions[member].number});
    }
    return rows;
}

// A search of the tariff begins with three digits, so the two of a country's code are
// written out with each digit that may follow.
void AddTariffRows(const NumberRange& range, TableRows& rows) {
    std::string number;
    for (const char digit : range.prefix) {
        if (digit != ' ') number += digit;
    }
    if (number.size() >= kShortestTariffNumber) {
        rows.rows.push_back({number, Text(range.cost), kTariffRow});
        return;
    }
    for (char next = '2'; next <= '9'; ++next)
        rows.rows.push_back({number + next, Text(range.cost), kTariffRow});
}

TableRows TariffRows() {
    TableRows rows{"tblcosts", {"Number", "Cost", "CostID"}, {}};
    for (const NumberRange& range : NumberRanges()) AddTariffRows(range, rows);
    rows.rows.push_back({"Default", kStandardCost, kDefaultRow});
    return rows;
}

TableRows AddressBookRows(const NumberPool& numbers) {
    TableRows rows{"tbladdressbook", {"Name", "Number"}, {}};
    std::array<std::size_t, kNumberKinds> next{};
    for (const DemoContact& contact : DemoContacts()) {
        const std::size_t rank = next[static_cast<std::size_t>(contact.kind)]++;
        rows.rows.push_back({Text(contact.name), numbers.Of(contact.kind)[rank]});
    }
    return rows;
}

void AddWhereEmpty(ado::Connection& connection, const TableRows& rows, std::ostream& out) {
    const std::int64_t there = CountRows(connection, rows.table);
    if (there > 0) {
        out << fmt::format("{}: {} rows there already\n", rows.table, there);
        return;
    }
    AddRows(connection, rows);
    out << fmt::format("{}: {} rows added\n", rows.table, rows.rows.size());
}

void AddCalls(ado::Connection& connection, CallGenerator& generator) {
    std::vector<std::string> columns;
    for (const CallColumn& column : kCallColumns) columns.emplace_back(column.name);
    ado::RowBatch batch(connection, "tblphonedata", columns);
    std::vector<ado::Value> values(columns.size());
    for (Call call; generator.Next(call);) {
        for (std::size_t i = 0; i < values.size(); ++i) values[i] = call.*kCallColumns[i].value;
        batch.Add(values);
    }
    FinishBatch(batch, "tblphonedata");
}

// PostgreSQL puts a row wherever a page has room for it. Laid out by their keys, calls
// come back in the order in which they were made, as the other servers give them.
void LayOutByKey(ado::Connection& connection) {
    if (connection.Server().Kind() != ado::Server::Postgres) return;
    connection.Execute("CLUSTER tblphonedata USING tblphonedata_pkey");
}

}  // namespace

bool AddDemonstration(ado::Connection& connection, std::uint64_t calls, std::uint64_t seed,
                      std::ostream& out) {
    const std::int64_t there = CountRows(connection, "tblphonedata");
    if (there > 0) {
        out << fmt::format("Demonstration: {} calls there already, nothing added\n", there);
        return false;
    }
    CallGenerator generator(calls, seed);
    Transaction transaction(connection);
    for (const TableRows& rows :
         {SiteRows(), ExtensionRows(), TariffRows(), AddressBookRows(generator.Numbers()), GroupNameRows()}) {
        AddWhereEmpty(connection, rows, out);
    }
    AddWhereEmpty(connection, GroupMapRows(connection), out);
    AddCalls(connection, generator);
    LayOutByKey(connection);
    transaction.Commit();
    out << fmt::format("tblphonedata: {} calls added\n", calls);
    return true;
}

}  // namespace tallix
