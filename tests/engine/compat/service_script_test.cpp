#include "compat/service_script.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tallix {
namespace {

using namespace std::chrono_literals;

class ServiceScriptTest : public testing::Test {
protected:
    bool Run(const std::string& script, std::chrono::milliseconds limit) {
        const std::filesystem::path file = folder_.Write("Processor/It's off.bat", script);
        return RunServiceScript(file, folder_.Path(), limit, [this] { ++served_; });
    }

    std::string Done() const { return test::ReadBytes(folder_.Path() / "done"); }

    test::TempFolder folder_;
    int served_ = 0;
};

TEST_F(ServiceScriptTest, RunsInItsFolderAndIsWaitedForWhileOthersAreServed) {
    EXPECT_TRUE(Run("sleep 0.2\necho stopped > done\nexit 3\n", 10s));
    EXPECT_EQ(Done(), "stopped\n");
    EXPECT_GT(served_, 2);
    EXPECT_TRUE(RunServiceScript(folder_.Path() / "missing", folder_.Path(), 10s, [] {}));
    EXPECT_TRUE(RunServiceScript(folder_.Path() / "missing", folder_.Path() / "none", 10s, [] {}));
}

TEST_F(ServiceScriptTest, IsLeftToItselfWhenTheLimitIsOver) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Run("sleep 1\necho stopped > done\n", 100ms));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 900ms);
    EXPECT_EQ(Done(), "");
    EXPECT_FALSE(RunServiceScript(
        folder_.Write("wait", "for i in $(seq 200); do test -e done && break; sleep 0.05; done"),
        folder_.Path(), 200ms, [] {}));
    EXPECT_TRUE(RunServiceScript(folder_.Path() / "wait", folder_.Path(), 10s, [] {}))
        << "the first script went on and has ended";
}

}  // namespace
}  // namespace tallix
