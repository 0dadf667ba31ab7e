// Which row of a code table begins with the first characters of a telephone number.
// Tariff, areas, providers and countries are all searched so: the prefix of the number
// grows until at most one row is left. That narrows a prefix and is not a longest match;
// a code longer than the prefix is found, and may differ from the number after it.
//
// PrefixTable answers from memory. PrefixLookup is for a table of the database
// and asks the server where the server could compare a prefix differently.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "database/database_scope.h"

namespace tallix {

/// Whether a text holds nothing but digits, "+", "*" and "#": characters without a
/// meaning in LIKE, in a literal or in a collation, which every server compares alike.
/// True for the empty text.
bool IsPlainNumber(std::string_view text);

/// How many characters a prefix may have; both lengths count.
struct PrefixLengths {
    std::size_t first = 1;
    std::size_t last = 0;  ///< at most the length of the number is used
};

class PrefixTable {
public:
    /// Pairs of code and value in stored order.
    explicit PrefixTable(std::vector<std::pair<std::string, std::string>> codesAndValues);

    struct Match {
        std::size_t rows = 0;   ///< rows whose code begins with the prefix
        std::size_t first = 0;  ///< when `rows` is 1, the row's place in stored order, from 0
    };

    /// Exact, byte by byte; the empty prefix begins every code.
    Match Find(std::string_view prefix) const;

    /// The shortest prefix of `number` within `lengths` (in bytes) that at most one row
    /// begins with decides: that row's place, or nothing when it has no row or when no
    /// prefix decides. One binary search, whatever the lengths. `number` holds no byte 0.
    std::optional<std::size_t> Narrow(std::string_view number, PrefixLengths lengths) const;

    std::string_view Value(std::size_t row) const { return rows_[row].second; }

    /// Whether every code is printable ASCII. A collation may hold other characters for
    /// equal to a digit.
    bool IsPlain() const { return plain_; }

private:
    std::size_t LowerBound(std::string_view text) const;
    std::size_t CommonLength(std::size_t place, std::string_view number) const;
    std::string_view Code(std::size_t place) const { return rows_[order_[place]].first; }

    std::vector<std::pair<std::string, std::string>> rows_;
    std::vector<std::uint32_t> order_;  ///< rows in ascending order of their codes
    std::vector<std::uint64_t> heads_;  ///< their first eight bytes, comparable as numbers
    bool plain_ = true;
};

class PrefixLookup {
public:
    /// Reads `table`; one that cannot be read has no rows. `database` must outlive the
    /// lookup.
    PrefixLookup(const DatabaseScope& database, std::string table, std::string codeColumn,
                 std::string valueColumn);

    /// The value of the row that narrowing ends on, as in PrefixTable; lengths count
    /// characters. NULL reads as the empty text. The view lives as long as the lookup.
    ///
    /// A prefix that is not a plain number is put to the server, once each, as
    /// `SELECT * FROM table WHERE code LIKE "prefix%"`; a refused statement has no rows.
    std::optional<std::string_view> Narrow(std::string_view number, PrefixLengths lengths);

private:
    struct Answer {
        std::int64_t rows = 0;
        std::string value;  ///< of the first row
    };

    std::optional<std::string_view> NarrowStepwise(std::string_view number, PrefixLengths lengths);
    const Answer& Ask(std::string_view prefix);
    Answer AskServer(std::string_view prefix);

    const DatabaseScope& database_;
    std::string table_;
    std::string codeColumn_;
    std::string valueColumn_;
    PrefixTable rows_;
    std::unordered_map<std::string, Answer> answers_;  ///< by prefix
};

}  // namespace tallix
