// The rows of a statement, fetched whole before the first one is looked at.
//
//     const ado::Rows calls = database.Query("SELECT * FROM tblphonedata");
//     const ado::Column date = calls.Find("Date");
//     for (const ado::Row call : calls) Use(call.At(date));
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/engine.h"
#include "database/row_arena.h"

namespace tallix::ado {

/// The place of a column in a result. Reading an absent one throws DatabaseError.
class Column {
public:
    Column() = default;
    explicit operator bool() const { return index_ != kAbsent; }

private:
    friend class Recordset;
    friend class Row;
    friend class Rows;
    static constexpr std::size_t kAbsent = static_cast<std::size_t>(-1);
    explicit Column(std::size_t index) : index_(index) {}
    std::size_t index_ = kAbsent;
};

/// One row. Valid, like the values it returns, as long as the Rows it is from.
class Row {
public:
    /// Throws DatabaseError when the column is absent.
    Value At(Column column) const {
        if (!column) ThrowAbsent();
        return result_->rows.At(row_, column.index_);
    }

    /// The same as text, where NULL reads as the empty text.
    std::string_view Text(Column column) const { return At(column).value_or(std::string_view()); }

    /// By name, for a read outside a loop. Throws DatabaseError for an unknown name.
    Value Item(std::string_view name) const;
    std::string_view Text(std::string_view name) const;

private:
    friend class Rows;
    Row(const Result& result, std::int64_t row) : result_(&result), row_(row) {}
    [[noreturn]] static void ThrowAbsent();

    const Result* result_;
    std::int64_t row_;
};

class Rows {
public:
    class Iterator {
    public:
        using value_type = Row;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::forward_iterator_tag;

        Iterator() = default;
        Row operator*() const { return Row(*result_, row_); }
        Iterator& operator++() {
            ++row_;
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++row_;
            return before;
        }
        bool operator==(const Iterator&) const = default;

    private:
        friend class Rows;
        Iterator(const Result* result, std::int64_t row) : result_(result), row_(row) {}
        const Result* result_ = nullptr;
        std::int64_t row_ = 0;
    };

    /// No rows and no columns.
    Rows();
    explicit Rows(Result result);

    std::int64_t Count() const { return result_->rows.Rows(); }
    bool IsEmpty() const { return Count() == 0; }

    /// The column's place, found without regard to case; an absent Column where the
    /// result has none of that name.
    Column Find(std::string_view name) const;
    const std::vector<std::string>& ColumnNames() const { return result_->columns; }

    /// The first row. Throws DatabaseError when there is none.
    Row First() const;

    /// The row at `index`, counted from 0. No range check.
    Row operator[](std::int64_t index) const { return Row(*result_, index); }

    Iterator begin() const { return Iterator(result_.get(), 0); }
    Iterator end() const { return Iterator(result_.get(), Count()); }

private:
    std::shared_ptr<const Result> result_;  ///< never null
};

}  // namespace tallix::ado
