#include "database/translation.h"

#include <algorithm>
#include <array>
#include <vector>

#include "database/statement.h"
#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix::ado {

namespace {

constexpr std::array<std::string_view, 4> kDataStatements{"select", "insert", "update", "delete"};
constexpr std::array<std::string_view, 8> kComparisons{"=", "<", ">", "<=", ">=", "<>", "!=", "=="};
constexpr std::array<std::string_view, 4> kConditionWords{"where", "having", "on", "when"};
constexpr std::array<std::string_view, 4> kAfterOrder{"limit", "offset", "fetch", "for"};

/// The tables of calls, whose rows are numbered in this column.
constexpr std::array<std::string_view, 2> kCallTables{"tblphonedata", "tblarchive"};
constexpr std::string_view kCallNumber = "ID";

template <std::size_t Count>
bool IsOneOf(const Token& token, const std::array<std::string_view, Count>& words) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) { return token.Is(word); });
}

/// A token that is not a blank, with the blanks before it and what it turns into.
struct Piece {
    Token token;
    std::string_view before;
    std::string text;
};

// MariaDB escapes by a backslash whatever its mode says, and refuses an empty ESCAPE; MySQL
// does neither. Naming the backslash serves both.
std::string WithoutEscapes(const std::string& pattern) {
    if (pattern.find('\\') == std::string::npos) return pattern;
    return Replace(pattern, "\\", "\\\\") + " ESCAPE '\\'";
}

class Translation {
public:
    Translation(std::string_view statement, Server server);
    std::string Run();

private:
    bool IsComparison(std::size_t at) const;
    bool IsColumnName(std::size_t at) const;
    bool IsNumberFrom(std::size_t at) const;
    bool ComparesWithNumber(std::size_t behindColumn) const;
    std::size_t ColumnEnd(std::size_t at) const;
    template <typename Test>
    std::size_t FindOutside(std::size_t from, Test test) const;
    std::size_t FindBy(std::string_view first) const;
    std::size_t OrderEnd(std::size_t from) const;
    std::size_t GroupEnd(std::size_t from) const;

    void RefuseSecondStatement() const;
    void DropStarOfDelete();
    void TurnLiteral(std::size_t at);
    void TurnWord(std::size_t at);
    void TurnQuotedName(std::size_t at);
    void CompareAsNumbers();
    void KeepPatternsPlain();
    void OrderEqualRows();
    void SortNullsFirst();
    std::vector<Piece> EqualRowsOrder() const;

    const Token& At(std::size_t at) const { return at < pieces_.size() ? pieces_[at].token : kNone; }

    static constexpr Token kNone{TokenKind::Symbol, {}};

    Server server_;
    std::vector<Piece> pieces_;
    std::string_view blankAfter_;
};

Translation::Translation(std::string_view statement, Server server) : server_(server) {
    const std::vector<Token> tokens = Tokenise(statement);
    pieces_.reserve(tokens.size());
    std::size_t blankFrom = 0;
    std::size_t at = 0;
    for (const Token& token : tokens) {
        if (token.kind != TokenKind::Blank) {
            pieces_.push_back({token, statement.substr(blankFrom, at - blankFrom), std::string(token.text)});
            blankFrom = at + token.text.size();
        }
        at += token.text.size();
    }
    blankAfter_ = statement.substr(blankFrom);
}

std::string Translation::Run() {
    if (IsOneOf(At(0), kDataStatements)) {
        RefuseSecondStatement();
        DropStarOfDelete();
        for (std::size_t at = 0; at < pieces_.size(); ++at) {
            TurnLiteral(at);
            TurnWord(at);
            TurnQuotedName(at);
        }
        if (server_ == Server::Sqlite) CompareAsNumbers();
        KeepPatternsPlain();
        OrderEqualRows();
        if (server_ == Server::Postgres) SortNullsFirst();
    }
    std::string statement;
    for (const Piece& piece : pieces_) statement.append(piece.before).append(piece.text);
    return statement.append(blankAfter_);
}

bool Translation::IsComparison(std::size_t at) const {
    return At(at).kind == TokenKind::Symbol &&
           std::find(kComparisons.begin(), kComparisons.end(), At(at).text) != kComparisons.end();
}

// 'Username' in "where 'Username' = ...": a word in apostrophes where a condition begins,
// with a comparison after it. A literal there would compare two constants, which no
// statement has a use for.
bool Translation::IsColumnName(std::size_t at) const {
    const Token& token = At(at);
    if (at == 0 || !token.Closed() || !IsComparison(at + 1)) return false;
    const Token& before = At(at - 1);
    if (!before.Is("where") && !before.Is("and") && !before.Is("or") && before.text != "(") return false;
    const std::string name = token.Content();
    const std::vector<Token> inside = Tokenise(name);
    return inside.size() == 1 && inside.front().kind == TokenKind::Word;
}

// Values go into statements as they are. Some servers would run what follows one that
// broke out of its quotes.
void Translation::RefuseSecondStatement() const {
    const auto ends = [](const Piece& piece) { return piece.token.text == ";"; };
    const auto end = std::find_if(pieces_.begin(), pieces_.end(), ends);
    if (!std::all_of(end, pieces_.end(), ends)) throw DatabaseError("More than one statement");
}

void Translation::DropStarOfDelete() {
    if (At(0).Is("delete") && At(1).text == "*") pieces_.erase(pieces_.begin() + 1);
}

void Translation::TurnLiteral(std::size_t at) {
    const Token& token = At(at);
    if (token.kind == TokenKind::DoubleQuoted && token.Closed() && server_ != Server::MySql) {
        pieces_[at].text = QuoteText(token.Content(), server_);
    }
    const bool takesNames = server_ == Server::Sqlite || server_ == Server::Postgres;
    if (token.kind == TokenKind::Apostrophed && takesNames && IsColumnName(at)) {
        pieces_[at].text = QuoteIdentifier(token.Content(), server_);
    }
}

void Translation::TurnWord(std::size_t at) {
    const Token& token = At(at);
    if (token.kind != TokenKind::Word) return;
    const bool ourTable = EqualNoCase(token.text.substr(0, 3), "tbl");
    if (server_ == Server::MySql && ourTable) pieces_[at].text = LowerCase(token.text);

    const bool beginsWithDigit = token.text.front() >= '0' && token.text.front() <= '9';
    const bool reserved = token.Is("user") && server_ != Server::Sqlite && At(at + 1).text != "(";
    if (server_ != Server::MySql && (beginsWithDigit || reserved)) {
        pieces_[at].text = QuoteIdentifier(token.text, server_);
    }
}

void Translation::TurnQuotedName(std::size_t at) {
    const Token& token = At(at);
    const bool bracketed =
        token.kind == TokenKind::Bracketed && (server_ == Server::MySql || server_ == Server::Postgres);
    const bool backticked =
        token.kind == TokenKind::Backticked && (server_ == Server::SqlServer || server_ == Server::Postgres);
    if ((bracketed || backticked) && token.Closed()) {
        pieces_[at].text = QuoteIdentifier(token.Content(), server_);
    }
}

// The place after the column that begins here ("Extension", "t.Extension"); `at` where none does.
std::size_t Translation::ColumnEnd(std::size_t at) const {
    const auto isName = [this](std::size_t place) {
        const TokenKind kind = At(place).kind;
        return kind == TokenKind::Word || kind == TokenKind::Bracketed || kind == TokenKind::Backticked ||
               (kind == TokenKind::Apostrophed && IsColumnName(place));
    };
    if (!isName(at) || At(at).Is("not")) return at;
    ++at;
    while (At(at).text == "." && isName(at + 1)) at += 2;
    return at;
}

bool Translation::IsNumberFrom(std::size_t at) const {
    while (At(at).text == "(" || At(at).text == "-" || At(at).text == "+") ++at;
    return At(at).kind == TokenKind::Number;
}

bool Translation::ComparesWithNumber(std::size_t behindColumn) const {
    const std::size_t at = behindColumn + (At(behindColumn).Is("not") ? 1 : 0);
    const bool listed = At(at).Is("between") || At(at).Is("in");
    return (IsComparison(at) || listed) && IsNumberFrom(at + 1);
}

void Translation::CompareAsNumbers() {
    std::size_t at = 0;
    while (at < pieces_.size() && !IsOneOf(At(at), kConditionWords)) ++at;
    while (at < pieces_.size()) {
        const std::size_t end = ColumnEnd(at);
        const bool numberBefore = at > 1 && IsComparison(at - 1) && At(at - 2).kind == TokenKind::Number;
        if (end > at && (ComparesWithNumber(end) || (numberBefore && At(end).text != "("))) {
            pieces_[at].text.insert(0, "CAST(");
            pieces_[end - 1].text += " AS REAL)";
        }
        at = std::max(end, at + 1);
    }
}

void Translation::KeepPatternsPlain() {
    for (std::size_t at = 1; at < pieces_.size(); ++at) {
        const TokenKind kind = At(at).kind;
        const bool literal = kind == TokenKind::DoubleQuoted || kind == TokenKind::Apostrophed;
        if (!At(at - 1).Is("like") || !literal || At(at + 1).Is("escape")) continue;
        std::string& pattern = pieces_[at].text;
        switch (server_) {
            case Server::Sqlite:
                break;
            case Server::Postgres:
                pattern += " ESCAPE ''";
                break;
            case Server::SqlServer:
                pattern = Replace(pattern, "[", "[[]");
                break;
            case Server::MySql:
                pattern = WithoutEscapes(pattern);
                break;
        }
    }
}

// The first piece outside brackets, from `from` on, that passes the test.
template <typename Test>
std::size_t Translation::FindOutside(std::size_t from, Test test) const {
    int depth = 0;
    for (; from < pieces_.size(); ++from) {
        if (At(from).text == "(") ++depth;
        if (At(from).text == ")") --depth;
        if (depth == 0 && test(from)) break;
    }
    return from;
}

// The piece after "FIRST BY"; the number of pieces where it does not occur.
std::size_t Translation::FindBy(std::string_view first) const {
    const std::size_t at =
        FindOutside(0, [&](std::size_t place) { return At(place).Is(first) && At(place + 1).Is("by"); });
    return std::min(at + 2, pieces_.size());
}

// Where the part after an ORDER BY list begins.
std::size_t Translation::OrderEnd(std::size_t from) const {
    return FindOutside(from,
                       [&](std::size_t at) { return IsOneOf(At(at), kAfterOrder) || At(at).text == ";"; });
}

std::size_t Translation::GroupEnd(std::size_t from) const {
    const std::size_t end = OrderEnd(from);
    return std::min(
        end, FindOutside(from, [&](std::size_t at) { return At(at).Is("having") || At(at).Is("order"); }));
}

// The columns that order the rows that a statement leaves equal; none where no order is
// needed or possible.
std::vector<Piece> Translation::EqualRowsOrder() const {
    const std::size_t groups = FindBy("group");
    if (groups < pieces_.size()) {
        if (At(GroupEnd(groups) - 1).Is("rollup")) return {};  // has an order of its own
        return {pieces_.begin() + static_cast<std::ptrdiff_t>(groups),
                pieces_.begin() + static_cast<std::ptrdiff_t>(GroupEnd(groups))};
    }
    const bool calls = At(1).text == "*" && At(2).Is("from") && IsOneOf(At(3), kCallTables);
    if (!calls || !(At(4).Is("where") || At(4).Is("order"))) return {};  // a join may know the name twice
    return {{{TokenKind::Word, kCallNumber}, " ", std::string(kCallNumber)}};
}

void Translation::OrderEqualRows() {
    const bool united = FindOutside(0, [&](std::size_t at) { return At(at).Is("union"); }) < pieces_.size();
    if (!At(0).Is("select") || united) return;
    std::vector<Piece> added = EqualRowsOrder();
    if (added.empty()) return;

    const std::size_t order = FindBy("order");
    const std::size_t end = OrderEnd(order < pieces_.size() ? order : 0);
    const std::size_t named = FindOutside(
        order, [&](std::size_t at) { return EqualNoCase(At(at).text, added.front().token.text); });
    if (named < end) return;

    added.front().before = " ";
    if (order < pieces_.size()) {
        added.insert(added.begin(), {{TokenKind::Symbol, ","}, "", ","});
    } else {
        added.insert(added.begin(), {{TokenKind::Word, "BY"}, " ", "BY"});
        added.insert(added.begin(), {{TokenKind::Word, "ORDER"}, " ", "ORDER"});
    }
    pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(end), added.begin(), added.end());
}

void Translation::SortNullsFirst() {
    const std::size_t order = FindBy("order");
    const std::size_t end = OrderEnd(order);
    for (std::size_t from = order; from < end; ++from) {
        const std::size_t comma =
            std::min(end, FindOutside(from, [&](std::size_t at) { return At(at).text == ","; }));
        const bool numbered = EqualNoCase(At(from).text, kCallNumber);  // never NULL, and a key
        if (!numbered) pieces_[comma - 1].text += At(comma - 1).Is("desc") ? " NULLS LAST" : " NULLS FIRST";
        from = comma;
    }
}

}  // namespace

std::string Translate(std::string_view statement, Server server) {
    return Translation(statement, server).Run();
}

}  // namespace tallix::ado
