#include "support/test_application.h"

#include <sstream>

#include "database/database_scope.h"
#include "database/recordset.h"
#include "database/schema.h"
#include "reporting/catalogue.h"
#include "support/places.h"

namespace tallix::test {

namespace {

const TestApplication::Row kCall = {
    {"Date", "05/03/2021"},     {"Time", "10:15:00"}, {"Duration", "00:02:30"},
    {"Extension", "201"},       {"NumRings", "3"},    {"OrigNum", "201"},
    {"DestNum", "01632960123"}, {"Internal", "0"},    {"Error", "0"},
    {"Supervision", "0"},       {"Speedcall", "0"},   {"Forward", "0"},
    {"Trunk", "T001"},          {"Account", "7"},     {"Site", "001"},
};

using KeyNames = std::vector<std::string>;
const KeyNames kColumns = {"Date",    "Time",    "Duration", "Extension", "Name",        "NumRings",
                           "OrigNum", "DestNum", "Internal", "Error",     "Supervision", "Speedcall",
                           "Forward", "Trunk",   "Account",  "Area",      "Site",        "Sum"};
const KeyNames kSwitches = {"Date",  "Duration", "Extension", "Account", "Site",
                            "Group", "Time",     "Cost",      "Hours"};
const KeyNames kTexts = {"Title", "Where", "Sum", "Top"};

std::string Keys(const KeyNames& keys, const std::string& fallback, const TestApplication::Row& values) {
    std::string text;
    for (const std::string& key : keys) {
        const auto value = values.find(key);
        if (value != values.end() && value->second == "-") continue;
        text += key + "=" + (value == values.end() ? fallback : value->second) + "\r\n";
    }
    return text;
}

}  // namespace

std::unique_ptr<ado::Connection> ConnectTo(const std::string& connectionText) {
    auto connection = std::make_unique<ado::Connection>();
    connection->ConnectionString = connectionText;
    connection->Open();
    return connection;
}

std::string AllRows(ado::Connection& connection, std::string_view statement) {
    ado::Recordset set;
    set.Open(statement, connection);
    std::string rows;
    for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext()) {
        for (const std::string& name : set.ColumnNames()) {
            rows += std::string(set.Item(name).value_or("NULL")) + '|';
        }
        rows += '\n';
    }
    return rows;
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::istringstream text(ReadBytes(file));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

TestApplication::TestApplication() : TestApplication(DatabaseAddress{DatabaseKind::MySql, "", "", ""}) {}

TestApplication::TestApplication(const DatabaseAddress& address)
    : settings(folder_.Path() / "settings", folder_.Path() / "settings", prompts),
      application{.folder = folder_.Path() / "ReportsTool",
                  .tempFolder = folder_.Path() / "temp",
                  .version = {1, 4, 6},
                  .settings = settings,
                  .prompts = prompts,
                  .clock = clock,
                  .events = events} {
    for (const char* name :
         {"settings", "temp", "ReportsTool/Reports/Standard", "ReportsTool/Company Docs"}) {
        std::filesystem::create_directories(folder_.Path() / name);
    }
    Session& session = application.session;
    session.database = address;
    if (address.server.empty()) session.database.server = "sqlite:" + folder_.Write("tallix.db", "").string();
    session.Currency = "£";
    session.CurrentUser = "Ann";
    session.ReportsLocation = application.folder.string();
    session.DocsLocation = application.folder.string() + "\\Company Docs";
    const DatabaseScope database(session.database);
    LayDownSchema(database.Connection(), SourceFolder() / "data" / "schema");
}

void TestApplication::Execute(std::string_view statement) {
    ConnectTo(ConnectionText(application.session.database))->Execute(statement);
}

std::string TestApplication::Rows(std::string_view statement) const {
    return AllRows(*ConnectTo(ConnectionText(application.session.database)), statement);
}

void TestApplication::Insert(const std::string& table, const Row& row) {
    const auto connection = ConnectTo(ConnectionText(application.session.database));
    ado::Recordset rows;
    rows.Open("select * from " + table, *connection);
    rows.AddNew();
    for (const auto& [column, value] : row) rows.Collect(column, value);
    rows.Update();
}

void TestApplication::InsertCall(const Row& changes) {
    Row call = changes;
    call.insert(kCall.begin(), kCall.end());
    Insert("tblphonedata", call);
}

std::filesystem::path TestApplication::WriteReport(const std::string& name, const Row& data,
                                                   const Row& options) {
    return folder_.Write(PresetReportFile(application.folder, name),
                         "[Data]\r\n" + Keys(kColumns, "False", data) + "[Options]\r\n" +
                             Keys(kSwitches, "False", options) + Keys(kTexts, "", options));
}

}  // namespace tallix::test
