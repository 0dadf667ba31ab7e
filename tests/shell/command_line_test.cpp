#include "shell/command_line.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

struct Line {
    const char* commandLine;
    RunKind kind;
    const char* path;
};

constexpr auto kReport = RunKind::ScheduledReport;

const Line kLines[] = {
    {"", RunKind::Interactive, ""},
    {"/t/Daily.SSR", kReport, "/t/Daily.SSR"},
    {"/t/Two  Words.SSR", kReport, "/t/Two  Words.SSR"},
    {"  /t/Daily.SSR", kReport, "/t/Daily.SSR"},
    {"/t/Daily.SSR ", RunKind::Nothing, ""},
    {"\"/t/A Day.SSR\"", kReport, "/t/A Day.SSR"},
    {"  \"/t/A Day.SSR\"", kReport, "/t/A Day.SSR"},
    {"\"/t/A Day.SSR\" ", RunKind::Nothing, ""},
    {"\"/t/Daily.SSR\u00A3", kReport, "/t/Daily.SSR"},  // one character, two bytes
    {"\"/t/Daily.SSR", RunKind::Nothing, ""},           // the last letter goes unseen
    {"/t/Daily.ssr", RunKind::Nothing, ""},
    {".SSR", kReport, ".SSR"},
    {"Backup", RunKind::Backup, ""},
    {"backup", RunKind::Nothing, ""},
    {" Backup", RunKind::Nothing, ""},
    {"\"Backup\"", RunKind::Nothing, ""},
    {"\"", RunKind::Nothing, ""},
    {"   ", RunKind::Nothing, ""},
};

TEST(DecideRun, TellsTheRunFromTheRawText) {
    for (const Line& line : kLines) {
        const RunRequest request = DecideRun(line.commandLine);
        EXPECT_EQ(request.kind, line.kind) << line.commandLine;
        EXPECT_EQ(request.pathText, line.path) << line.commandLine;
    }
}

}  // namespace
}  // namespace tallix
