#include "foundation/ado/statement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace tallix::ado {
namespace {

TEST(Tokenise, NamesThePieces) {
    std::vector<std::pair<TokenKind, std::string>> found;
    for (const Token& token : Tokenise("3PTName<>1.5e-3 --x\n[a]]b]\"c\"\"d\"'e'`f`1e caf\xC3\xA9")) {
        if (token.kind != TokenKind::Blank) found.emplace_back(token.kind, token.text);
    }
    using enum TokenKind;
    EXPECT_THAT(found, testing::ElementsAre(std::pair(Word, "3PTName"), std::pair(Symbol, "<>"),
                                            std::pair(Number, "1.5e-3"), std::pair(Bracketed, "[a]]b]"),
                                            std::pair(DoubleQuoted, "\"c\"\"d\""),
                                            std::pair(Apostrophed, "'e'"), std::pair(Backticked, "`f`"),
                                            std::pair(Word, "1e"), std::pair(Word, "caf\xC3\xA9")));
}

TEST(Tokenise, LosesNothingOfAnyText) {
    constexpr std::string_view kAlphabet = "a5e.-+'\"[]`=<>(),; \n\\\xC3";
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string text(random() % 30, ' ');
        for (char& c : text) c = kAlphabet[random() % kAlphabet.size()];
        std::string joined;
        for (const Token& token : Tokenise(text)) joined += token.text;
        ASSERT_EQ(joined, text);
    }
}

TEST(Token, KnowsWhetherALiteralIsClosed) {
    for (const auto& [text, closed] : std::vector<std::pair<std::string_view, bool>>{{"''", true},
                                                                                     {"'", false},
                                                                                     {"'''", false},
                                                                                     {"''''", true},
                                                                                     {"'a''", false},
                                                                                     {"[a]]", false},
                                                                                     {"[]", true}}) {
        EXPECT_EQ(Tokenise(text).front().Closed(), closed) << text;
    }
    EXPECT_EQ(Tokenise("\"a\"\"b'\"").front().Content(), "a\"b'");
}

TEST(TableOf, FindsTheOneTable) {
    EXPECT_EQ(TableOf("Select * From tblcostmap"), "tblcostmap");
    EXPECT_EQ(TableOf("select a,b from [tbl site] where x in (1,2)"), "tbl site");
    for (const char* none :
         {"select * from a, b", "select * from a join b on 1 = 1", "select * from (select 1)",
          "select * from a where b in (select c from d)", "delete from a", "select 1", ""}) {
        EXPECT_EQ(TableOf(none), "") << none;
    }
}

TEST(Quote, DoublesTheDelimiter) {
    EXPECT_EQ(QuoteText("it's \\ \"", Server::MySql), "'it''s \\ \"'");
    EXPECT_EQ(QuoteText(std::string_view("a\0'", 3), Server::Sqlite), "CAST(X'610027' AS TEXT)");
    EXPECT_EQ(QuoteIdentifier("tblSite", Server::MySql), "`tblsite`");
    EXPECT_EQ(QuoteIdentifier("Us`er", Server::MySql), "`Us``er`");
    EXPECT_EQ(QuoteIdentifier("Us\"er", Server::Postgres), "\"us\"\"er\"");
    EXPECT_EQ(QuoteIdentifier("Us]er", Server::SqlServer), "[Us]]er]");
    EXPECT_EQ(QuoteIdentifier("tblSite", Server::Sqlite), "\"tblSite\"");
}

}  // namespace
}  // namespace tallix::ado
