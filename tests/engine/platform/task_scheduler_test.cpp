#include "platform/task_scheduler.h"

#include <gmock/gmock.h>

#include <thread>

#include "support/test_crontab.h"

namespace tallix {
namespace {

using ::testing::HasSubstr;

Task Named(const std::string& name) {
    return {.name = name, .command = {"/opt/Tallix_Reports", "Backup"}};
}

std::string EntryOf(const std::string& name) {
    return "# " + name + "\n0 0 * * * '/opt/Tallix_Reports' 'Backup'\n";
}

TEST(TaskSchedulerTest, LeavesForeignLinesAndOtherTasksAsTheyAre) {
    const test::TestCrontab crontab;
    const std::string foreign =
        "# Tallix_a\nMAILTO=x\r\n\n# Tallix_a\n# Tallix_Reports of old\n*/5 * * * * cp a\\%b /x  \n";
    crontab.Set(foreign + EntryOf("Tallix_a # Tallix_b") + "9 9 * * * last, without its line feed");
    ASSERT_TRUE(CreateTask(Named("Tallix_b")));
    const std::string others =
        foreign + EntryOf("Tallix_a # Tallix_b") + "9 9 * * * last, without its line feed\n";
    EXPECT_EQ(crontab.Text(), others + EntryOf("Tallix_b"));
    ASSERT_TRUE(CreateTask(Named("Tallix_b")));
    EXPECT_EQ(crontab.Text(), others + EntryOf("Tallix_b")) << "one entry by name";
    ASSERT_TRUE(DeleteTask("Tallix_b"));
    ASSERT_TRUE(DeleteTask("Tallix_"));
    EXPECT_EQ(crontab.Text(), others);
}

TEST(TaskSchedulerTest, RefusesWhatWouldBreakTheCrontabOrBeCutOff) {
    const test::TestCrontab crontab;
    for (const std::string name : {"", "a\n* * * * * rm", "a/b", "..\\b"}) {
        EXPECT_FALSE(CreateTask(Named(name))) << name;
    }
    Task task = Named("Tallix_long");
    task.command[1] = std::string(1000, 'x');
    EXPECT_FALSE(CreateTask(task));
    task.command[1] = "a\nb";
    EXPECT_FALSE(CreateTask(task));
    EXPECT_EQ(crontab.Text(), "");
}

TEST(TaskSchedulerTest, ChangesAtOnceAreAllKept) {
    const test::TestCrontab crontab;
    std::vector<std::thread> others;
    others.reserve(8);
    for (int i = 0; i < 8; ++i)
        others.emplace_back([i] { CreateTask(Named("Tallix_" + std::to_string(i))); });
    for (std::thread& other : others) other.join();
    for (int i = 0; i < 8; ++i)
        EXPECT_THAT(crontab.Text(), HasSubstr(EntryOf("Tallix_" + std::to_string(i))));
}

}  // namespace
}  // namespace tallix
