#include "setup/table_rows.h"

#include <fmt/format.h>

#include "database/recordset.h"
#include "failures/attempt.h"
#include "setup/setup_error.h"
#include "text/text_conversion.h"

namespace tallix {

Transaction::Transaction(ado::Connection& connection) : connection_(connection) {
    const bool longForm = connection.Server().Kind() == ado::Server::SqlServer;
    connection_.Execute(longForm ? "BEGIN TRANSACTION" : "BEGIN");
}

Transaction::~Transaction() {
    if (open_) Attempt([&] { connection_.Execute("ROLLBACK"); });
}

void Transaction::Commit() {
    connection_.Execute("COMMIT");
    open_ = false;
}

std::int64_t CountRows(ado::Connection& connection, std::string_view table) {
    ado::Recordset count;
    count.Open(fmt::format("SELECT COUNT(*) AS RowsThere FROM {}", table), connection);
    return ToInteger32(count.Text("RowsThere"));
}

void AddRows(ado::Connection& connection, const TableRows& rows) {
    ado::RowBatch batch(connection, rows.table, rows.columns);
    for (const std::vector<std::string>& row : rows.rows) {
        batch.Add(std::vector<ado::Value>(row.begin(), row.end()));
    }
    FinishBatch(batch, rows.table);
}

void FinishBatch(ado::RowBatch& batch, std::string_view table) {
    batch.Flush();
    if (batch.Refused() > 0) {
        throw SetupError(fmt::format("the database refused {} rows of {}", batch.Refused(), table));
    }
}

}  // namespace tallix
