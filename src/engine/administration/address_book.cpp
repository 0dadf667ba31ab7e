#include "administration/address_book.h"

#include <stdexcept>

#include "database/database_scope.h"
#include "database/row_batch.h"
#include "text/text_lines.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

std::string NumberStatement(const DatabaseScope& database, std::string_view number) {
    return "select * from tbladdressbook where number=" + database.Quoted(number);
}

void AddLine(std::string_view line, ado::RowBatch& rows) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        rows.Add({Mid(line, 2, line.size()), ado::Value{}});
    } else {
        rows.Add({line.substr(comma + 1), line.substr(0, comma)});
    }
}

}  // namespace

std::vector<KnownNumber> LoadAddressBook(const Session& session) {
    const ado::Rows rows = DatabaseScope(session.database).Query("select * from tbladdressbook");
    std::vector<KnownNumber> entries;
    for (const ado::Row row : rows) {
        entries.push_back({std::string(row.Text("Name")), std::string(row.Text("Number"))});
    }
    return entries;
}

bool AddKnownNumber(const Session& session, const KnownNumber& entry) {
    const DatabaseScope database(session.database);
    ado::Recordset rows = database.Edit(NumberStatement(database, entry.number));
    if (rows.RecordCount() > 0) return false;
    rows.AddNew();
    rows.Collect("Name", entry.name);
    rows.Collect("Number", entry.number);
    rows.Update();
    return true;
}

bool RenameKnownNumber(const Session& session, const KnownNumber& entry) {
    const DatabaseScope database(session.database);
    ado::Recordset rows = database.Edit(NumberStatement(database, entry.number));
    if (rows.RecordCount() == 0) return false;
    rows.Collect("Name", entry.name);
    rows.Update();
    return true;
}

void DeleteKnownNumber(const Session& session, std::string_view number) {
    const DatabaseScope database(session.database);
    ado::Recordset rows = database.Edit(NumberStatement(database, number));
    if (rows.RecordCount() > 0) rows.Delete();
}

void ImportAddressBook(const Session& session, const std::filesystem::path& file) {
    TextLines lines(file);
    if (!lines.IsOpen()) throw std::runtime_error("File not found: " + file.string());
    const DatabaseScope database(session.database);
    ado::RowBatch rows(database.Connection(), "tbladdressbook", {"Name", "Number"}, ado::Refusal::Throws);
    while (const std::string* line = lines.Next()) AddLine(*line, rows);
    rows.Flush();
}

}  // namespace tallix
