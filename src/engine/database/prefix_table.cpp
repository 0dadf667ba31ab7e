#include "database/prefix_table.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::size_t kBitsPerByte = 8;

bool IsPlainCharacter(char character) {
    return (character >= '0' && character <= '9') || character == '+' || character == '*' || character == '#';
}

bool IsPrintableAscii(char character) {
    return character >= ' ' && character <= '~';
}

/// The first eight bytes as a number that compares like the text; shorter texts are
/// filled with zeros.
std::uint64_t Head(std::string_view text) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof(head); ++i) {
        head = head << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    }
    return head;
}

/// A lower bound whose steps are sums and no branches: numbers come in no order, so that
/// branches would be guessed wrong every second time.
std::size_t FirstNotBelow(const std::vector<std::uint64_t>& heads, std::uint64_t head) {
    std::size_t from = 0;
    for (std::size_t count = heads.size(); count > 0;) {
        const std::size_t half = (count + 1) / 2;
        from += static_cast<std::size_t>(heads[from + half - 1] < head) * half;
        count -= half;
    }
    return from;
}

std::vector<std::pair<std::string, std::string>> ReadRows(const DatabaseScope& database,
                                                          const std::string& table,
                                                          const std::string& codeColumn,
                                                          const std::string& valueColumn) {
    std::vector<std::pair<std::string, std::string>> rows;
    Attempt([&] {
        const ado::Rows set = database.Query("SELECT * FROM " + table);
        const ado::Column code = set.Find(codeColumn);
        const ado::Column value = set.Find(valueColumn);
        for (const ado::Row row : set) {
            const ado::Value text = row.At(code);
            if (text) rows.emplace_back(*text, value ? row.Text(value) : "");  // LIKE finds no NULL
        }
    });
    return rows;
}

}  // namespace

bool IsPlainNumber(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsPlainCharacter);
}

PrefixTable::PrefixTable(std::vector<std::pair<std::string, std::string>> codesAndValues)
    : rows_(std::move(codesAndValues)), order_(rows_.size()) {
    std::iota(order_.begin(), order_.end(), 0U);
    std::stable_sort(order_.begin(), order_.end(),
                     [this](auto left, auto right) { return rows_[left].first < rows_[right].first; });
    heads_.reserve(order_.size());
    for (std::size_t place = 0; place < order_.size(); ++place) {
        const std::string_view code = Code(place);
        heads_.push_back(Head(code));
        plain_ = plain_ && std::all_of(code.begin(), code.end(), IsPrintableAscii);
    }
}

std::size_t PrefixTable::LowerBound(std::string_view text) const {
    const std::uint64_t head = Head(text);
    std::size_t low = FirstNotBelow(heads_, head);
    if (low == heads_.size() || heads_[low] != head) return low;
    const auto last = std::upper_bound(heads_.begin() + static_cast<std::ptrdiff_t>(low), heads_.end(), head);
    std::size_t high = static_cast<std::size_t>(last - heads_.begin());
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (Code(middle) < text) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

std::size_t PrefixTable::CommonLength(std::size_t place, std::string_view number) const {
    const std::uint64_t difference = heads_[place] ^ Head(number);
    if (difference != 0) {
        return std::min(static_cast<std::size_t>(std::countl_zero(difference)) / kBitsPerByte, number.size());
    }
    const std::string_view code = Code(place);
    const auto end = std::mismatch(code.begin(), code.end(), number.begin(), number.end());
    return static_cast<std::size_t>(end.first - code.begin());
}

PrefixTable::Match PrefixTable::Find(std::string_view prefix) const {
    const auto from = order_.begin() + static_cast<std::ptrdiff_t>(LowerBound(prefix));
    const auto to = std::partition_point(from, order_.end(),
                                         [&](auto row) { return rows_[row].first.starts_with(prefix); });
    return {static_cast<std::size_t>(to - from), from == to ? 0 : *from};
}

std::optional<std::size_t> PrefixTable::Narrow(std::string_view number, PrefixLengths lengths) const {
    // Codes share the less with the number the farther they are from its own place in
    // their order. The two on either side decide: up to the second best length in
    // common several rows begin with the prefix, up to the best one row, beyond it none.
    const std::size_t place = LowerBound(number);
    std::size_t best = 0;
    std::size_t second = 0;
    std::size_t bestPlace = order_.size();
    const std::size_t from = place < 2 ? 0 : place - 2;
    const std::size_t to = std::min(place + 2, order_.size());
    for (std::size_t i = from; i < to; ++i) {
        const std::size_t common = CommonLength(i, number);
        second = std::max(second, std::min(best, common));
        if (common > best) {
            best = common;
            bestPlace = i;
        }
    }
    const std::size_t decided = std::max(lengths.first, second + 1);
    if (decided > std::min(lengths.last, number.size()) || decided > best) return std::nullopt;
    return order_[bestPlace];
}

PrefixLookup::PrefixLookup(const DatabaseScope& database, std::string table, std::string codeColumn,
                           std::string valueColumn)
    : database_(database),
      table_(std::move(table)),
      codeColumn_(std::move(codeColumn)),
      valueColumn_(std::move(valueColumn)),
      rows_(ReadRows(database, table_, codeColumn_, valueColumn_)) {}

std::optional<std::string_view> PrefixLookup::Narrow(std::string_view number, PrefixLengths lengths) {
    if (!rows_.IsPlain() || !IsPlainNumber(number)) return NarrowStepwise(number, lengths);
    const std::optional<std::size_t> row = rows_.Narrow(number, lengths);
    if (!row) return std::nullopt;
    return rows_.Value(*row);
}

std::optional<std::string_view> PrefixLookup::NarrowStepwise(std::string_view number, PrefixLengths lengths) {
    const std::size_t last = std::min(lengths.last, Len(number));
    for (std::size_t length = lengths.first; length <= last; ++length) {
        const Answer& answer = Ask(Left(number, length));
        if (answer.rows == 1) return answer.value;
        if (answer.rows == 0) return std::nullopt;
    }
    return std::nullopt;
}

const PrefixLookup::Answer& PrefixLookup::Ask(std::string_view prefix) {
    const auto [place, isNew] = answers_.try_emplace(std::string(prefix));
    if (!isNew) return place->second;
    if (rows_.IsPlain() && IsPlainNumber(prefix)) {
        const PrefixTable::Match match = rows_.Find(prefix);
        place->second.rows = static_cast<std::int64_t>(match.rows);
        if (match.rows == 1) place->second.value = rows_.Value(match.first);
    } else {
        place->second = AskServer(prefix);
    }
    return place->second;
}

PrefixLookup::Answer PrefixLookup::AskServer(std::string_view prefix) {
    Answer answer;
    Attempt([&] {
        const ado::Rows found = database_.Query("SELECT * FROM " + table_ + " WHERE " + codeColumn_ +
                                                " LIKE " + database_.Quoted(std::string(prefix) + "%"));
        answer.rows = found.Count();
        if (answer.rows > 0) answer.value = found.First().Text(valueColumn_);
    });
    return answer;
}

}  // namespace tallix
