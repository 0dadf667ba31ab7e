// The pieces of a statement: words, literals, identifiers, as every server here writes
// them. What they turn into on their way to a server is in database/translation.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/connection_text.h"

namespace tallix::ado {

enum class TokenKind { Blank, Word, Number, DoubleQuoted, Apostrophed, Bracketed, Backticked, Symbol };

struct Token {
    TokenKind kind;
    std::string_view text;  ///< as written in the statement, delimiters included

    /// Whether the token is this word, given in lower case, in any case.
    bool Is(std::string_view lowerCaseWord) const;

    /// Whether a literal or quoted name has its closing delimiter.
    bool Closed() const;

    /// What a closed literal or quoted name holds, doubled delimiters made one.
    std::string Content() const;
};

/// Splits a statement. The tokens' texts joined give the statement again. A literal
/// that is never closed runs to the end; a comment ("-- ...") is a Blank.
std::vector<Token> Tokenise(std::string_view statement);

/// The table that a "select ... from TABLE" reads, for writing back through its result;
/// empty where there is not exactly one.
std::string TableOf(std::string_view statement);

/// A value as a literal of `server`, and a column or table name as its identifier. Names
/// are lower case on PostgreSQL, and those of the system's tables (tbl...) on MySQL.
std::string QuoteText(std::string_view value, Server server);
std::string QuoteIdentifier(std::string_view name, Server server);

/// QuoteText at the end of a text, for statements of very many values.
void AppendQuoted(std::string& to, std::string_view value, Server server);

}  // namespace tallix::ado
