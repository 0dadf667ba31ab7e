// "SELECT * FROM table WHERE key = value", asked for the calls of a run again and
// again: the names of extensions, the address book, stored costs. The answer is that
// of the statement, first row of several included, without one statement per call.
//
// The first questions go to the server one by one. A run that keeps asking gets the table
// read once and is answered from memory. Memory answers only for keys whose equality means
// the same on every server (digits and the like, no trailing blank); any other key goes to
// the server each time it is new. Where keys are compared as numbers, memory also needs
// digits in all rows of the table: a server may refuse another text or read a number into
// it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "database/database_scope.h"
#include "host/event_queue.h"

namespace tallix {

/// How a key is written in its statement.
enum class KeyForm {
    Quoted,  ///< compared as text
    Bare,    ///< compared as a number, "0201" with "201"; a key that is not a number finds nothing
};

struct KeyLookupNames {
    std::string_view table;
    std::string_view statement;  ///< up to and including the "=" and what follows it
    std::string_view key;
    std::string_view value;
    KeyForm form = KeyForm::Quoted;
};

class KeyLookup {
public:
    /// `database` must outlive the lookup. `events` are served while the table is read.
    KeyLookup(const DatabaseScope& database, EventQueue& events, const KeyLookupNames& names);
    ~KeyLookup();

    /// The value of the first row with the key: the empty text where it is NULL, nothing
    /// where there is no row or the server refuses the statement. The view lives as long
    /// as the lookup.
    std::optional<std::string_view> Find(std::string_view key);

private:
    class Table;

    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    using Memo = std::unordered_map<std::string, std::optional<std::string>, TextHash, std::equal_to<>>;

    bool MemoryKnows(std::string_view key) const;
    std::optional<std::string_view> Ask(std::string_view key);
    std::string Literal(std::string_view key) const;
    std::optional<std::string> FirstValue(std::string_view key);
    void ReadTable();

    const DatabaseScope& database_;
    EventQueue& events_;
    KeyLookupNames names_;
    Memo answers_;
    bool triedTable_ = false;
    std::unique_ptr<Table> table_;
};

}  // namespace tallix
