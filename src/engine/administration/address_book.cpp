#include "administration/address_book.h"

#include <stdexcept>

#include "database/recordset.h"
#include "database/row_batch.h"
#include "session/database.h"
#include "text/text_lines.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr char kAllNumbers[] = "select * from tbladdressbook";

ado::Recordset OpenRowsOf(Session& session, std::string_view number) {
    OpenDatabase(session);
    ado::Recordset rows;
    rows.Open(std::string(kAllNumbers) + " where number=" + Quoted(session, number), OpenConnection(session));
    return rows;
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

std::vector<KnownNumber> LoadAddressBook(Session& session) {
    OpenDatabase(session);
    ado::Recordset rows;
    rows.Open(kAllNumbers, OpenConnection(session));
    std::vector<KnownNumber> entries;
    for (std::int64_t i = 1; i <= rows.RecordCount(); ++i, rows.MoveNext()) {
        entries.push_back({std::string(rows.Text("Name")), std::string(rows.Text("Number"))});
    }
    CloseDatabase(session);
    return entries;
}

bool AddKnownNumber(Session& session, const KnownNumber& entry) {
    ado::Recordset rows = OpenRowsOf(session, entry.number);
    const bool isNew = rows.RecordCount() == 0;
    if (isNew) {
        rows.AddNew();
        rows.Collect("Name", entry.name);
        rows.Collect("Number", entry.number);
        rows.Update();
    }
    CloseDatabase(session);
    return isNew;
}

bool RenameKnownNumber(Session& session, const KnownNumber& entry) {
    ado::Recordset rows = OpenRowsOf(session, entry.number);
    const bool isThere = rows.RecordCount() > 0;
    if (isThere) {
        rows.Collect("Name", entry.name);
        rows.Update();
    }
    CloseDatabase(session);
    return isThere;
}

void DeleteKnownNumber(Session& session, std::string_view number) {
    ado::Recordset rows = OpenRowsOf(session, number);
    if (rows.RecordCount() > 0) rows.Delete();
    CloseDatabase(session);
}

void ImportAddressBook(Session& session, const std::filesystem::path& file) {
    TextLines lines(file);
    if (!lines.IsOpen()) throw std::runtime_error("File not found: " + file.string());
    OpenDatabase(session);
    ado::RowBatch rows(OpenConnection(session), "tbladdressbook", {"Name", "Number"}, ado::Refusal::Throws);
    while (const std::string* line = lines.Next()) AddLine(*line, rows);
    rows.Flush();
    CloseDatabase(session);
}

}  // namespace tallix
