#include "database/database_address.h"

#include <algorithm>
#include <array>

namespace tallix {
namespace {

struct Dialect {
    DatabaseKind kind;
    std::string_view stored;
    std::string_view connectionHead;  ///< up to the address
    std::string_view database;
    std::string_view stringQuote;
    std::string_view identifierQuote;
};

// The drivers and the option number are those of the installed systems, whose texts stay.
constexpr std::string_view kConnectionTail = ";OPTION=165932";

// PostgreSQL itself takes these quotes the other way round; the statement translation
// exchanges them.
constexpr std::array kDialects{
    Dialect{DatabaseKind::MySql, "1", "DRIVER={MySQL ODBC 5.1 Driver};SERVER=", "TALLIX", "\"", ""},
    Dialect{DatabaseKind::SqlServer, "2", "PROVIDER=SQLNCLI.1;SERVER=", "TALLIX", "'", ""},
    Dialect{DatabaseKind::Postgres, "3", "DRIVER={PostgreSQL ANSI};SERVER=", "tallix", "\"", "'"},
};

template <typename Key>
const Dialect* FindDialect(Key Dialect::*member, const Key& key) {
    const auto found = std::find_if(kDialects.begin(), kDialects.end(),
                                    [&](const Dialect& dialect) { return dialect.*member == key; });
    return found == kDialects.end() ? nullptr : &*found;
}

}  // namespace

DatabaseKind DatabaseKindOf(std::string_view stored) {
    const Dialect* dialect = FindDialect(&Dialect::stored, stored);
    return dialect ? dialect->kind : DatabaseKind::Unknown;
}

std::string ConnectionText(const DatabaseAddress& address) {
    const Dialect* dialect = FindDialect(&Dialect::kind, address.kind);
    if (!dialect) return {};
    std::string text(dialect->connectionHead);
    text += address.server;
    text.append(";DATABASE=").append(dialect->database);
    text += ";UID=" + address.user + ";PWD=" + address.password;
    return text.append(kConnectionTail);
}

std::string_view StringQuote(DatabaseKind kind) {
    const Dialect* dialect = FindDialect(&Dialect::kind, kind);
    return dialect ? dialect->stringQuote : "\"";
}

std::string_view IdentifierQuote(DatabaseKind kind) {
    const Dialect* dialect = FindDialect(&Dialect::kind, kind);
    return dialect ? dialect->identifierQuote : "";
}

std::string Quoted(DatabaseKind kind, std::string_view value) {
    const std::string_view quote = StringQuote(kind);
    std::string quoted(quote);
    return quoted.append(value).append(quote);
}

}  // namespace tallix
