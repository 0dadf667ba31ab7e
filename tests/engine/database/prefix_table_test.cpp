#include "database/prefix_table.h"

#include <gtest/gtest.h>

#include <random>

namespace tallix {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

std::vector<std::size_t> RowsThatBegin(const Rows& rows, std::string_view prefix) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].first.starts_with(prefix)) found.push_back(i);
    return found;
}

/// The search in its simplest form: the prefix grows until at most one row begins with it.
std::optional<std::size_t> NarrowStepByStep(const Rows& rows, std::string_view number,
                                            PrefixLengths lengths) {
    for (std::size_t length = lengths.first; length <= std::min(lengths.last, number.size()); ++length) {
        const std::vector<std::size_t> found = RowsThatBegin(rows, number.substr(0, length));
        if (found.size() == 1) return found.front();
        if (found.empty()) return std::nullopt;
    }
    return std::nullopt;
}

std::string RandomDigits(std::mt19937& generator, std::size_t longest) {
    std::string text(generator() % (longest + 1), ' ');
    for (char& digit : text) digit = "012"[generator() % 3];
    return text;
}

TEST(PrefixTable, OneSearchGivesWhatGrowingThePrefixGives) {
    std::mt19937 generator(7);
    for (int round = 0; round < 400; ++round) {
        Rows rows;
        for (std::size_t i = generator() % 40; i > 0; --i) rows.emplace_back(RandomDigits(generator, 11), "");
        const PrefixTable table(rows);
        for (int i = 0; i < 50; ++i) {
            const std::string number = RandomDigits(generator, 12);
            const PrefixLengths lengths{1 + generator() % 3,
                                        number.size() - (number.empty() ? 0 : generator() % 2)};
            ASSERT_EQ(table.Narrow(number, lengths), NarrowStepByStep(rows, number, lengths)) << number;
            ASSERT_EQ(table.Find(number).rows, RowsThatBegin(rows, number).size()) << number;
        }
    }
}

TEST(PrefixTable, RecognisesNumbersThatEveryServerComparesAlike) {
    for (const char* plain : {"", "01632960000", "+44*#"}) EXPECT_TRUE(IsPlainNumber(plain)) << plain;
    for (const char* other : {"0%", "0_1", "01 2", "x1", "0\"", "0'", "0\\", "\xC2\xB9"})
        EXPECT_FALSE(IsPlainNumber(other)) << other;
    EXPECT_TRUE(PrefixTable(Rows{{"Default", ""}}).IsPlain());
    EXPECT_FALSE(PrefixTable(Rows{{"0", ""}, {"\xC2\xB9", ""}}).IsPlain());
}

}  // namespace
}  // namespace tallix
