#include "database/statement.h"

#include <gmock/gmock.h>

#include <random>

namespace tallix::ado {
namespace {

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

TEST(Tokenise, NamesThePiecesAndKnowsThatTheyAreClosed) {
    std::vector<std::string_view> pieces;
    for (const Token& token : Tokenise("3PTName<>1.5e-3 --x\n[a]]b]\"c\"\"d\"'e'`f`1e caf\xC3\xA9")) {
        if (token.kind != TokenKind::Blank) pieces.push_back(token.text);
    }
    EXPECT_THAT(pieces, testing::ElementsAre("3PTName", "<>", "1.5e-3", "[a]]b]", "\"c\"\"d\"", "'e'", "`f`",
                                             "1e", "caf\xC3\xA9"));
    for (const char* text : {"''", "''''", "[]"}) EXPECT_TRUE(Tokenise(text).front().Closed()) << text;
    for (const char* text : {"'", "'''", "'a''", "[a]]"})
        EXPECT_FALSE(Tokenise(text).front().Closed()) << text;
}

}  // namespace
}  // namespace tallix::ado
