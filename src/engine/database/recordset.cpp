#include "database/recordset.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "database/statement.h"
#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix::ado {

namespace {

std::string LiteralOf(const Value& value, Server server) {
    return value ? QuoteText(*value, server) : std::string("NULL");
}

// The texts of the items, joined.
template <typename Range, typename ToText>
std::string Joined(const Range& range, std::string_view separator, ToText toText) {
    std::string joined;
    for (const auto& item : range) {
        if (!joined.empty()) joined += separator;
        joined += toText(item);
    }
    return joined;
}

}  // namespace

/// What was set, and what was stored over the rows as they were fetched.
struct Recordset::Changes {
    bool adding = false;
    Values pending;
    std::map<std::int64_t, Values> stored;
};

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::Open(std::string_view statement, Connection& connection) {
    Close();
    result_ = std::make_shared<const Result>(connection.Fetch(statement));
    connection_ = &connection;
    statement_ = statement;
}

void Recordset::Close() noexcept {
    *this = Recordset();
}

void Recordset::RequireOpen() const {
    if (!result_) throw DatabaseError("The record set is closed");
}

std::int64_t Recordset::RecordCount() const {
    RequireOpen();
    return result_->rows.Rows();
}

const std::vector<std::string>& Recordset::ColumnNames() const {
    RequireOpen();
    return result_->columns;
}

Column Recordset::Find(std::string_view name) const {
    const std::vector<std::string>& names = ColumnNames();
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& column) { return EqualNoCase(column, name); });
    return found == names.end() ? Column() : Column(static_cast<std::size_t>(found - names.begin()));
}

Column Recordset::Require(std::string_view name) const {
    const Column column = Find(name);
    if (!column) throw DatabaseError("The result has no column \"" + std::string(name) + "\"");
    return column;
}

// The cell with what was set or stored since the rows were fetched, and the failures of At.
Value Recordset::ChangedCell(Column column) const {
    if (!column) throw DatabaseError("The result has no such column");
    const bool adding = changes_ && changes_->adding;
    if (!adding) RequireRow();
    if (changes_) {
        const auto pending = changes_->pending.find(column.index_);
        if (pending != changes_->pending.end()) return pending->second;
        const auto row = changes_->stored.find(row_);
        const bool written = !adding && row != changes_->stored.end() && row->second.contains(column.index_);
        if (written) return row->second.at(column.index_);
    }
    return adding ? Value() : result_->rows.At(row_, column.index_);
}

std::string_view Recordset::Text(Column column) const {
    return At(column).value_or(std::string_view());
}

Value Recordset::Item(std::string_view name) const {
    return At(Require(name));
}

std::string_view Recordset::Text(std::string_view name) const {
    return Text(Require(name));
}

void Recordset::MoveNext() noexcept {
    Move(1);
}

void Recordset::MovePrevious() noexcept {
    Move(-1);
}

// One place past either end is kept, from where a step back finds the row again.
void Recordset::Move(std::int64_t step) noexcept {
    if (!result_) return;
    row_ = std::clamp<std::int64_t>(row_ + step, -1, result_->rows.Rows());
    if (!changes_) return;
    changes_->adding = false;
    changes_->pending.clear();
}

void Recordset::RequireRow() const {
    if (row_ < 0 || row_ >= RecordCount()) throw DatabaseError("No row of the record set is current");
}

void Recordset::AddNew() {
    RequireOpen();
    if (!changes_) changes_ = std::make_unique<Changes>();
    changes_->adding = true;
    changes_->pending.clear();
}

void Recordset::Collect(std::string_view name, Value value) {
    Collect(Require(name), value);
}

void Recordset::Collect(Column column, Value value) {
    RequireOpen();
    if (!column) throw DatabaseError("The result has no such column");
    if (!changes_) changes_ = std::make_unique<Changes>();
    if (!changes_->adding) RequireRow();
    changes_->pending[column.index_] = value;
}

void Recordset::Update() {
    RequireOpen();
    if (!changes_) return;
    const Values values = std::exchange(changes_->pending, {});
    if (std::exchange(changes_->adding, false)) {
        Insert(values);
    } else if (!values.empty()) {
        UpdateRow(values);
    }
}

void Recordset::Insert(const Values& values) {
    Engine& server = connection_->Server();
    const auto name = [&](const auto& value) {
        return QuoteIdentifier(result_->columns[value.first], server.Kind());
    };
    const auto literal = [&](const auto& value) { return LiteralOf(value.second, server.Kind()); };
    const std::string_view noValues = server.Kind() == Server::MySql ? " () VALUES ()" : " DEFAULT VALUES";
    std::string statement = "INSERT INTO " + Table();
    if (values.empty()) {
        statement += noValues;
    } else {
        statement += " (" + Joined(values, ", ", name) + ") VALUES (" + Joined(values, ", ", literal) + ")";
    }
    server.Execute(statement);
}

void Recordset::UpdateRow(const Values& values) {
    const auto assignment = [this](const auto& value) {
        const Server server = connection_->Server().Kind();
        return QuoteIdentifier(result_->columns[value.first], server) + " = " +
               LiteralOf(value.second, server);
    };
    connection_->Server().Execute("UPDATE " + Table() + " SET " + Joined(values, ", ", assignment) +
                                  " WHERE " + RowCondition());
    Values& stored = changes_->stored[row_];
    for (const auto& [column, value] : values) stored[column] = value;
}

void Recordset::Delete() {
    RequireRow();
    connection_->Server().Execute("DELETE FROM " + Table() + " WHERE " + RowCondition());
}

const std::string& Recordset::Table() {
    if (table_.empty()) {
        const std::string name = TableOf(statement_);
        if (name.empty())
            throw DatabaseError("The rows cannot be written, for they are not of one table: " + statement_);
        table_ = QuoteIdentifier(name, connection_->Server().Kind());
    }
    return table_;
}

// The primary key, or all columns where the table has none or the result leaves some out.
const std::vector<std::size_t>& Recordset::KeyPlaces() {
    if (!keyPlaces_.empty()) return keyPlaces_;
    for (const std::string& name : connection_->Server().KeyColumns(TableOf(statement_))) {
        const Column column = Find(name);
        keyPlaces_.push_back(column.index_);
    }
    const bool complete =
        std::find(keyPlaces_.begin(), keyPlaces_.end(), Column::kAbsent) == keyPlaces_.end();
    if (keyPlaces_.empty() || !complete) {
        keyPlaces_.resize(result_->columns.size());
        std::iota(keyPlaces_.begin(), keyPlaces_.end(), std::size_t{0});
    }
    return keyPlaces_;
}

std::string Recordset::RowCondition() {
    const Server server = connection_->Server().Kind();
    return Joined(KeyPlaces(), " AND ", [&](std::size_t place) {
        const Value value = ChangedCell(Column(place));
        const std::string name = QuoteIdentifier(result_->columns[place], server);
        return value ? name + " = " + QuoteText(*value, server) : name + " IS NULL";
    });
}

Recordset Recordset::Clone() const {
    Recordset clone;
    clone.result_ = result_;
    clone.connection_ = connection_;
    clone.statement_ = statement_;
    return clone;
}

}  // namespace tallix::ado
