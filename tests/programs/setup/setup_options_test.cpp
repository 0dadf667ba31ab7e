#include "setup/setup_options.h"

#include <gmock/gmock.h>

namespace tallix {
namespace {

TEST(SetupOptions, TakesEveryOptionAndLeavesTheOthersUnset) {
    const SetupOptions options = ParseSetupOptions(
        {"--type", "3", "--address", "db:5433", "--user", "u", "--password", "--demo", "--admin-password",
         "Pä55 word", "--demo", "0", "--seed", "18446744073709551615", "--user", "last"});
    EXPECT_EQ(options.type, "3");
    EXPECT_EQ(options.address, "db:5433");
    EXPECT_EQ(options.user, "last");
    EXPECT_EQ(options.password, "--demo");
    EXPECT_EQ(options.adminPassword, "Pä55 word");
    EXPECT_EQ(options.demoCalls, 0U);
    EXPECT_EQ(options.seed, 18446744073709551615U);

    const SetupOptions none = ParseSetupOptions({});
    EXPECT_EQ(none.type + none.address + none.user + none.password + none.adminPassword, "");
    EXPECT_FALSE(none.demoCalls || none.help);
}

TEST(SetupOptions, RefusesWithAnOptionNamed) {
    const std::pair<std::vector<std::string>, const char*> lines[] = {
        {{"--demos", "5"}, "\"--demos\""},
        {{"tallix.db"}, "\"tallix.db\""},
        {{"--type=1"}, "\"--type=1\""},
        {{"--demo"}, "--demo needs"},
        {{"--address", ""}, "--address needs"},
        {{"--type", "4"}, "--type takes 1, 2 or 3"},
        {{"--demo", "-1"}, "--demo takes"},
        {{"--demo", "1e6"}, "--demo takes"},
        {{"--demo", "20000001"}, "--demo takes"},
        {{"--seed", "18446744073709551616"}, "--seed takes"},
        // The login would never take these.
        {{"--admin-password", "myUpDaTes"}, "--admin-password takes"},
        {{"--admin-password", std::string(45, 'x')}, "--admin-password takes"}};
    for (const auto& [arguments, message] : lines) {
        try {
            ParseSetupOptions(arguments);
            ADD_FAILURE() << "taken: " << arguments[0];
        } catch (const UsageError& failure) {
            EXPECT_THAT(failure.what(), testing::HasSubstr(message));
        }
    }
}

}  // namespace
}  // namespace tallix
