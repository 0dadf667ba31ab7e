#include "database/row_batch.h"

#include "database/statement.h"
#include "failures/attempt.h"

namespace tallix::ado {

namespace {

// A statement beyond these sizes is not faster, only larger. Servers take at least 1 MB;
// SQL Server takes 1000 rows at most.
constexpr std::size_t kRowsAStatement = 500;
constexpr std::size_t kBytesAStatement = std::size_t{256} * 1024;

}  // namespace

RowBatch::RowBatch(Connection& connection, std::string_view table, const std::vector<std::string>& columns,
                   Refusal refusal)
    : connection_(connection), refusal_(refusal) {
    const Server server = connection.Server().Kind();
    head_ = "INSERT INTO " + QuoteIdentifier(table, server) + " (";
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (column > 0) head_ += ", ";
        head_ += QuoteIdentifier(columns[column], server);
    }
    head_ += ") VALUES ";
}

void RowBatch::Add(const std::vector<Value>& values) {
    const Server server = connection_.Server().Kind();
    if (!starts_.empty()) rows_ += ',';
    starts_.push_back(rows_.size());
    rows_ += '(';
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (column > 0) rows_ += ',';
        if (values[column]) {
            AppendQuoted(rows_, *values[column], server);
        } else {
            rows_ += "NULL";
        }
    }
    rows_ += ')';
    if (starts_.size() >= kRowsAStatement || rows_.size() >= kBytesAStatement) Flush();
}

void RowBatch::Flush() {
    if (starts_.empty()) return;
    const bool stored = Attempt([&] { connection_.Server().Execute(head_ + rows_); });
    if (!stored) SendOneByOne();
    rows_.clear();
    starts_.clear();
}

void RowBatch::SendOneByOne() {
    for (std::size_t row = 0; row < starts_.size(); ++row) {
        if (refusal_ == Refusal::Throws) {
            SendRow(row);
        } else if (!Attempt([&] { SendRow(row); })) {
            ++refused_;
        }
    }
}

void RowBatch::SendRow(std::size_t index) {
    std::string statement = head_;
    statement += Row(index);
    connection_.Server().Execute(statement);
}

std::string_view RowBatch::Row(std::size_t index) const {
    const bool last = index + 1 == starts_.size();
    const std::size_t end = last ? rows_.size() : starts_[index + 1] - 1;  // before the comma
    return std::string_view(rows_).substr(starts_[index], end - starts_[index]);
}

}  // namespace tallix::ado
