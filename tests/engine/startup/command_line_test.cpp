#include "startup/command_line.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

TEST(DecideRun, DecidesByTheRawText) {
    const std::pair<const char*, const char*> reports[] = {
        {"/t/Two  Words.SSR", "/t/Two  Words.SSR"},
        {"  /t/Daily.SSR", "/t/Daily.SSR"},
        {"  \"/t/A Day.SSR\"", "/t/A Day.SSR"},
        {".SSR", ".SSR"},
        {"\"/t/Daily.SSR\u00A3", "/t/Daily.SSR"}};  // one character, two bytes
    for (const auto& [commandLine, path] : reports) {
        const RunRequest request = DecideRun(commandLine);
        EXPECT_EQ(request.kind, StartKind::ScheduledReport) << commandLine;
        EXPECT_EQ(request.pathText, path);
    }
    EXPECT_EQ(DecideRun("").kind, StartKind::Interactive);
    EXPECT_EQ(DecideRun("Backup").kind, StartKind::Backup);
    for (const char* nothing : {"/t/Daily.SSR ", "\"/t/A Day.SSR\" ", "\"/t/Daily.SSR", "/t/Daily.ssr",
                                "backup", " Backup", "\"Backup\"", "\"", "   "}) {
        EXPECT_EQ(DecideRun(nothing).kind, StartKind::Nothing) << nothing;
    }
}

}  // namespace
}  // namespace tallix
