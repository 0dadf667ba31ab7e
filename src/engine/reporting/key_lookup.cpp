#include "reporting/key_lookup.h"

#include <algorithm>
#include <bit>

#include "database/prefix_table.h"
#include "failures/attempt.h"
#include "text/text_conversion.h"
#include "text/text_pieces.h"

namespace tallix {

namespace {

/// Distinct keys asked of the server before the whole table is read.
constexpr std::size_t kQuestionsBeforeTable = 64;

/// Digits in a whole number that every server holds as one.
constexpr std::size_t kDigitsOfNumber = 9;

bool IsWholeNumber(std::string_view text) {
    return !text.empty() && text.size() <= kDigitsOfNumber && std::all_of(text.begin(), text.end(), IsDigit);
}

/// The form that equal numbers have in common.
std::string_view WithoutLeadingZeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
}

std::optional<std::string_view> View(const std::optional<std::string>& text) {
    return text ? std::optional<std::string_view>(*text) : std::nullopt;
}

}  // namespace

// The rows of a table by key: an open-addressing index of row numbers, 4 bytes per place,
// over the fetched rows. The first row of a key is the one found.
class KeyLookup::Table {
public:
    Table(const DatabaseScope& database, const KeyLookupNames& names)
        : rows_(database.Query("SELECT * FROM " + std::string(names.table))),
          form_(names.form),
          key_(ColumnNamed(names.key)),
          value_(ColumnNamed(names.value)),
          places_(std::bit_ceil(static_cast<std::size_t>(rows_.Count()) * 2 + 1), kFree) {
        for (std::int64_t row = 0; row < rows_.Count(); ++row) Enter(row);
    }

    /// Whether the server may see this key as equal to one that is spelled otherwise.
    bool IsDoubtful(std::string_view key) const { return doubtful_.find(key) != doubtful_.end(); }

    std::optional<std::string_view> Find(std::string_view asked) const {
        const std::string_view key = Known(asked);
        for (std::size_t place = PlaceOf(key); places_[place] != kFree; place = Next(place)) {
            if (KeyAt(places_[place]) == key) return rows_[places_[place]].Text(value_);
        }
        return std::nullopt;
    }

private:
    static constexpr std::uint32_t kFree = static_cast<std::uint32_t>(-1);

    ado::Column ColumnNamed(std::string_view name) const {
        const ado::Column column = rows_.Find(name);
        if (!column) throw DatabaseError("The column " + std::string(name) + " is missing");
        return column;
    }

    void Enter(std::int64_t row) {
        const ado::Value stored = rows_[row].At(key_);
        if (!stored) return;
        NoteDoubts(*stored);
        const std::string_view key = Known(*stored);
        std::size_t place = PlaceOf(key);
        for (; places_[place] != kFree; place = Next(place)) {
            if (KeyAt(places_[place]) == key) return;
        }
        places_[place] = static_cast<std::uint32_t>(row);
    }

    void NoteDoubts(std::string_view key) {
        if (form_ == KeyForm::Bare && !IsWholeNumber(key))
            throw ConversionError("A stored key is not a number");
        const std::string_view trimmed = key.substr(0, key.find_last_not_of(' ') + 1);
        if (trimmed.size() != key.size()) doubtful_.emplace(trimmed);
    }

    /// The form in which a key is known.
    std::string_view Known(std::string_view key) const {
        return form_ == KeyForm::Bare ? WithoutLeadingZeros(key) : key;
    }

    std::size_t PlaceOf(std::string_view key) const {
        return std::hash<std::string_view>{}(key) & (places_.size() - 1);
    }
    std::size_t Next(std::size_t place) const { return (place + 1) & (places_.size() - 1); }
    std::string_view KeyAt(std::uint32_t row) const { return Known(*rows_[row].At(key_)); }

    ado::Rows rows_;
    KeyForm form_;
    ado::Column key_;
    ado::Column value_;
    std::vector<std::uint32_t> places_;
    std::unordered_set<std::string, TextHash, std::equal_to<>> doubtful_;
};

KeyLookup::KeyLookup(const DatabaseScope& database, EventQueue& events, const KeyLookupNames& names)
    : database_(database), events_(events), names_(names) {}

KeyLookup::~KeyLookup() = default;

std::optional<std::string_view> KeyLookup::Find(std::string_view key) {
    const bool plain = MemoryKnows(key);
    if (plain && table_ && !table_->IsDoubtful(key)) return table_->Find(key);
    if (const auto known = answers_.find(key); known != answers_.end()) return View(known->second);
    if (plain && !triedTable_ && answers_.size() >= kQuestionsBeforeTable) {
        ReadTable();
        return Find(key);
    }
    return Ask(key);
}

bool KeyLookup::MemoryKnows(std::string_view key) const {
    return names_.form == KeyForm::Bare ? IsWholeNumber(key) : IsPlainNumber(key);
}

std::optional<std::string_view> KeyLookup::Ask(std::string_view key) {
    return View(answers_.emplace(std::string(key), FirstValue(key)).first->second);
}

std::string KeyLookup::Literal(std::string_view key) const {
    if (names_.form == KeyForm::Quoted) return database_.Quoted(key);
    if (!IsNumeric(key)) throw ConversionError("A bare key is not a number");
    return std::string(key);
}

std::optional<std::string> KeyLookup::FirstValue(std::string_view key) {
    std::optional<std::string> value;
    Attempt([&] {
        const ado::Rows rows = database_.Query(std::string(names_.statement) + Literal(key));
        if (!rows.IsEmpty()) value = rows.First().Text(names_.value);
    });
    return value;
}

void KeyLookup::ReadTable() {
    triedTable_ = true;
    Attempt([&] { events_.ServeDuring([&] { table_ = std::make_unique<Table>(database_, names_); }); });
}

}  // namespace tallix
