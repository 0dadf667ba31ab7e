// Statements are written once for all servers. What a server would refuse is turned
// into its own form here, word by word by a tokeniser that knows literals and
// identifiers, never by replacing text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/ado/connection_text.h"

namespace tallix::ado {

enum class TokenKind { Blank, Word, Number, DoubleQuoted, Apostrophed, Bracketed, Backticked, Symbol };

struct Token {
    TokenKind kind;
    std::string_view text;  ///< as it stands in the statement, delimiters included
};

/// Splits a statement. The tokens' texts joined give the statement again. A literal
/// that is never closed runs to the end.
std::vector<Token> Tokenise(std::string_view statement);

/// The statement as `server` takes it. A literal that is not closed is left as it is,
/// so that the server refuses it.
std::string Translate(std::string_view statement, Server server);

/// The table that a "select ... from TABLE" reads, for writing back through its result;
/// empty where there is not exactly one.
std::string TableOf(std::string_view statement);

/// A value as a literal of `server`, and a column or table name as its identifier.
std::string QuoteText(std::string_view value, Server server);
std::string QuoteIdentifier(std::string_view name, Server server);

}  // namespace tallix::ado
