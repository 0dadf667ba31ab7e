// The rows of a statement, fetched whole at Open, walked from 1 to RecordCount, and
// the way in which single rows are added, changed and deleted.
//
//     ado::Recordset calls;
//     calls.Open("SELECT * FROM tblphonedata", connection);
//     const ado::Column date = calls.Find("Date");
//     for (std::int64_t i = 1; i <= calls.RecordCount(); ++i, calls.MoveNext()) {
//         Use(calls.At(date));
//     }
//
// Writes go to the server at once. A row is found again by its table's primary key,
// or by all its columns as they were read where the table has none.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "database/row_arena.h"
#include "database/rows.h"

namespace tallix::ado {

class Recordset {
public:
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    /// Runs the statement and moves to its first row. A set that was open is closed
    /// first. `connection` must outlive all writes through the set. Throws DatabaseError;
    /// the set is then closed.
    void Open(std::string_view statement, Connection& connection);
    void Close() noexcept;
    bool IsOpen() const { return result_ != nullptr; }

    /// The rows fetched; rows added later do not count. Throws DatabaseError when closed.
    std::int64_t RecordCount() const;

    /// The column's place, found without regard to case; an absent Column where the
    /// result has none of that name.
    Column Find(std::string_view name) const;
    const std::vector<std::string>& ColumnNames() const;

    /// The value in the current row, the pending one of an AddNew included. Views live
    /// until the set is closed or written through. Throws DatabaseError when the column
    /// is absent, the set closed, or no row current (past the end, empty).
    Value At(Column column) const {
        const bool plain = column && result_ && !changes_ && row_ >= 0 && row_ < result_->rows.Rows();
        return plain ? result_->rows.At(row_, column.index_) : ChangedCell(column);
    }

    /// The same as text, where NULL reads as the empty text.
    std::string_view Text(Column column) const;

    /// By name, for the odd read outside a loop. Throws for an unknown name as well.
    Value Item(std::string_view name) const;
    std::string_view Text(std::string_view name) const;

    /// Moving past the last row or before the first leaves no row current. What was set
    /// and not stored is dropped.
    void MoveNext() noexcept;
    void MovePrevious() noexcept;

    /// Starts a new row. Collect fills it, Update stores it; the row that was current
    /// is then current again. Columns that are not set take the server's default.
    void AddNew();

    /// Sets a column of the new or the current row; nothing for NULL. Reaches the
    /// server with Update. Throws DatabaseError for an unknown column.
    void Collect(std::string_view name, Value value);
    void Collect(Column column, Value value);

    /// Stores the row. Throws DatabaseError when the server refuses; what was set is
    /// then dropped.
    void Update();

    /// Deletes the current row from its table. The set goes on counting it and keeps its
    /// values. Throws DatabaseError.
    void Delete();

    /// A second set over the same rows, with a place of its own, standing on the first.
    Recordset Clone() const;

private:
    struct Changes;
    using Values = std::map<std::size_t, std::optional<std::string>>;  ///< by the place of their column

    Column Require(std::string_view name) const;
    Value ChangedCell(Column column) const;
    void Move(std::int64_t step) noexcept;
    void RequireOpen() const;
    void RequireRow() const;
    const std::string& Table();
    const std::vector<std::size_t>& KeyPlaces();
    std::string RowCondition();
    void Insert(const Values& values);
    void UpdateRow(const Values& values);

    std::shared_ptr<const Result> result_;
    Connection* connection_ = nullptr;
    std::string statement_;
    std::string table_;                   ///< in its server's quotes, once something was written
    std::vector<std::size_t> keyPlaces_;  ///< the columns that identify a row, likewise
    std::int64_t row_ = 0;
    std::unique_ptr<Changes> changes_;  ///< absent while nothing was set
};

}  // namespace tallix::ado
