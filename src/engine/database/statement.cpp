#include "database/statement.h"

#include <algorithm>
#include <array>

#include "text/text_conversion.h"

namespace tallix::ado {

namespace {

constexpr std::array<std::string_view, 7> kLongSymbols{"<=>", "<>", "<=", ">=", "!=", "==", "||"};

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool IsWordCharacter(char c) {
    const char lower = Lower(c);
    return (lower >= 'a' && lower <= 'z') || IsDigit(c) || c == '_' || c == '$' || c == '@' || c == '#' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

template <typename Test>
std::size_t SkipWhile(std::string_view text, std::size_t at, Test test) {
    while (at < text.size() && test(text[at])) ++at;
    return at;
}

// Digits with a fraction and an exponent; the exponent counts only with its digits.
std::size_t NumberEnd(std::string_view text, std::size_t at) {
    at = SkipWhile(text, at, IsDigit);
    if (at < text.size() && text[at] == '.') at = SkipWhile(text, at + 1, IsDigit);
    if (at == text.size() || Lower(text[at]) != 'e') return at;
    const bool hasSign = at + 1 < text.size() && (text[at + 1] == '+' || text[at + 1] == '-');
    const std::size_t digits = at + (hasSign ? 2 : 1);
    const std::size_t end = SkipWhile(text, digits, IsDigit);
    return end > digits ? end : at;
}

// Past the closing delimiter; a doubled one is part of what it closes.
std::size_t QuotedEnd(std::string_view text, std::size_t at, char closing) {
    for (++at; at < text.size(); ++at) {
        if (text[at] != closing) continue;
        if (at + 1 == text.size() || text[at + 1] != closing) return at + 1;
        ++at;
    }
    return text.size();
}

std::size_t SymbolEnd(std::string_view text, std::size_t at) {
    for (const std::string_view symbol : kLongSymbols) {
        if (text.substr(at).starts_with(symbol)) return at + symbol.size();
    }
    return at + 1;
}

std::size_t BlankEnd(std::string_view text, std::size_t at) {
    if (!text.substr(at).starts_with("--")) return SkipWhile(text, at, IsBlank);
    return std::min(text.find('\n', at), text.size());
}

// A name may begin with digits, so a number ends where no word goes on.
std::pair<TokenKind, std::size_t> NumberOrWord(std::string_view text, std::size_t at) {
    const std::size_t end = NumberEnd(text, at);
    const std::size_t wordEnd = SkipWhile(text, end, IsWordCharacter);
    return {wordEnd > end ? TokenKind::Word : TokenKind::Number, wordEnd};
}

std::pair<TokenKind, std::size_t> NextToken(std::string_view text, std::size_t at) {
    const char c = text[at];
    const bool digitFollows = at + 1 < text.size() && IsDigit(text[at + 1]);
    if (IsBlank(c) || text.substr(at).starts_with("--")) return {TokenKind::Blank, BlankEnd(text, at)};
    if (IsDigit(c) || (c == '.' && digitFollows)) return NumberOrWord(text, at);
    if (IsWordCharacter(c)) return {TokenKind::Word, SkipWhile(text, at, IsWordCharacter)};
    switch (c) {
        case '"':
            return {TokenKind::DoubleQuoted, QuotedEnd(text, at, '"')};
        case '\'':
            return {TokenKind::Apostrophed, QuotedEnd(text, at, '\'')};
        case '[':
            return {TokenKind::Bracketed, QuotedEnd(text, at, ']')};
        case '`':
            return {TokenKind::Backticked, QuotedEnd(text, at, '`')};
        default:
            return {TokenKind::Symbol, SymbolEnd(text, at)};
    }
}

void AppendDoubling(std::string& to, std::string_view text, char delimiter) {
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find(delimiter, from), text.size());
        to.append(text.substr(from, end - from));
        if (end < text.size()) to.append(2, delimiter);
        from = end + 1;
    }
}

std::string Delimited(char opening, std::string_view text, char closing) {
    std::string result(1, opening);
    AppendDoubling(result, text, closing);
    return result + closing;
}

// The embedded engine ends a statement at a NUL byte, so such a text goes in digits.
void AppendHexadecimal(std::string& to, std::string_view value) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    to += "CAST(X'";
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        to += kDigits[byte >> 4];
        to += kDigits[byte & 15];
    }
    to += "' AS TEXT)";
}

}  // namespace

bool Token::Is(std::string_view lowerCaseWord) const {
    return kind == TokenKind::Word &&
           std::equal(text.begin(), text.end(), lowerCaseWord.begin(), lowerCaseWord.end(),
                      [](char c, char lower) { return Lower(c) == lower; });
}

bool Token::Closed() const {
    const char closing = text.front() == '[' ? ']' : text.front();
    const auto inside = text.substr(1);
    const auto last = inside.find_last_not_of(closing);
    const std::size_t closers = inside.size() - (last == std::string_view::npos ? 0 : last + 1);
    return closers % 2 == 1;  // an even number means delimiters inside
}

std::string Token::Content() const {
    const char closing = text.back();
    std::string content;
    for (std::size_t at = 1; at + 1 < text.size(); ++at) {
        content += text[at];
        if (text[at] == closing) ++at;
    }
    return content;
}

std::vector<Token> Tokenise(std::string_view statement) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < statement.size();) {
        const auto [kind, end] = NextToken(statement, at);
        tokens.push_back({kind, statement.substr(at, end - at)});
        at = end;
    }
    return tokens;
}

std::string TableOf(std::string_view statement) {
    std::vector<Token> tokens = Tokenise(statement);
    std::erase_if(tokens, [](const Token& token) { return token.kind == TokenKind::Blank; });
    const auto from =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& token) { return token.Is("from"); });
    if (tokens.empty() || !tokens.front().Is("select") || tokens.end() - from < 2) return {};
    const Token& table = from[1];
    const bool another = std::any_of(from + 2, tokens.end(),
                                     [](const Token& token) { return token.Is("join") || token.Is("from"); });
    const bool listed = tokens.end() - from > 2 && from[2].text == ",";
    if (another || listed) return {};
    if (table.kind == TokenKind::Word) return std::string(table.text);
    const bool quoted = table.kind == TokenKind::Bracketed || table.kind == TokenKind::Backticked;
    return quoted && table.Closed() ? table.Content() : std::string();
}

void AppendQuoted(std::string& to, std::string_view value, Server server) {
    if (server == Server::Sqlite && value.find('\0') != std::string_view::npos) {
        AppendHexadecimal(to, value);
        return;
    }
    to += '\'';
    AppendDoubling(to, value, '\'');
    to += '\'';
}

std::string QuoteText(std::string_view value, Server server) {
    std::string quoted;
    AppendQuoted(quoted, value, server);
    return quoted;
}

std::string QuoteIdentifier(std::string_view name, Server server) {
    switch (server) {
        case Server::MySql:
            return Delimited('`', EqualNoCase(name.substr(0, 3), "tbl") ? LowerCase(name) : std::string(name),
                             '`');
        case Server::Postgres:
            return Delimited('"', LowerCase(name), '"');
        case Server::SqlServer:
            return Delimited('[', name, ']');
        case Server::Sqlite:
            break;
    }
    return Delimited('"', name, '"');
}

}  // namespace tallix::ado
