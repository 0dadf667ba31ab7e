#include "shell/command_line.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

struct Line {
    const char* commandLine;
    RunKind kind;
    const char* path;
};

class DecideRunTest : public testing::TestWithParam<Line> {};

TEST_P(DecideRunTest, TellsTheRunFromTheRawText) {
    const RunRequest request = DecideRun(GetParam().commandLine);

    EXPECT_EQ(request.kind, GetParam().kind);
    EXPECT_EQ(request.pathText, GetParam().path);
}

constexpr auto kReport = RunKind::ScheduledReport;

INSTANTIATE_TEST_SUITE_P(
    , DecideRunTest,
    testing::Values(Line{"", RunKind::Interactive, ""},                       //
                    Line{"/t/Daily.SSR", kReport, "/t/Daily.SSR"},            //
                    Line{"/t/Two  Words.SSR", kReport, "/t/Two  Words.SSR"},  //
                    Line{"  /t/Daily.SSR", kReport, "/t/Daily.SSR"},          //
                    Line{"/t/Daily.SSR ", RunKind::Nothing, ""},              //
                    Line{"\"/t/A Day.SSR\"", kReport, "/t/A Day.SSR"},        //
                    Line{"  \"/t/A Day.SSR\"", kReport, "/t/A Day.SSR"},      //
                    Line{"\"/t/A Day.SSR\" ", RunKind::Nothing, ""},          //
                    Line{"\"/t/Daily.SSR\u00A3", kReport, "/t/Daily.SSR"},    // one character, two bytes
                    Line{"\"/t/Daily.SSR", RunKind::Nothing, ""},             // the last letter goes unseen
                    Line{"/t/Daily.ssr", RunKind::Nothing, ""},               //
                    Line{".SSR", kReport, ".SSR"},                            //
                    Line{"Backup", RunKind::Backup, ""},                      //
                    Line{"backup", RunKind::Nothing, ""},                     //
                    Line{" Backup", RunKind::Nothing, ""},                    //
                    Line{"\"Backup\"", RunKind::Nothing, ""},                 //
                    Line{"\"", RunKind::Nothing, ""},                         //
                    Line{"   ", RunKind::Nothing, ""}));

}  // namespace
}  // namespace tallix
