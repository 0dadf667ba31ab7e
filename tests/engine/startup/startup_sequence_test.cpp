#include "startup/startup_sequence.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "compat/ini_file.h"
#include "startup/command_line.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using testing::ElementsAre;

/// Writes down everything that happens, in order.
class Diary : public SplashView, public EventQueue {
public:
    void ShowVersion(const std::string& text) override { lines.push_back(text); }
    void ShowSplash() override { lines.emplace_back("show"); }
    void ShowStep(std::string_view caption, int tick) override {
        lines.push_back(fmt::format("{} {}", tick, caption));
    }
    void UnloadSplash() override { lines.emplace_back("unload"); }
    void ShowSettingsRequired() override { lines.emplace_back("settings required"); }
    void LoadLogin() override { lines.emplace_back("load login"); }
    void ShowLogin() override { lines.emplace_back("show login"); }
    void Serve() override { lines.emplace_back("serve"); }

    std::vector<std::string> lines;
};

class StartupSequenceTest : public testing::Test {
protected:
    StartupSequenceTest() {
        test_.settings.Write("DBIP", "10.0.0.5");
        application_.session = {};
        test_.events.queue = &diary_;
    }

    /// Runs a whole sequence, with more ticks than it needs.
    void Start(const std::string& commandLine) {
        StartupSequence sequence(application_, commandLine, diary_, work_);
        sequence.Load();
        for (int tick = 0; tick < 9; ++tick) sequence.Tick();
        EXPECT_TRUE(sequence.HasEnded());
    }

    /// What happened from the last caption on.
    std::vector<std::string> Outcome() const {
        auto last = diary_.lines.end();
        while (last != diary_.lines.begin() && !(--last)->ends_with("...")) {
        }
        return {last, diary_.lines.end()};
    }

    test::TestApplication test_;
    const std::filesystem::path home_ = test_.application.folder;
    Diary diary_;
    const UnattendedWork work_ = {
        [this](const ScheduledReport& report) { diary_.lines.push_back("report for " + report.user); },
        [this] { diary_.lines.emplace_back("dump"); }};
    Application& application_ = test_.application;
};

TEST_F(StartupSequenceTest, APersonIsLedThroughEveryStepToTheLogin) {
    StartupSequence sequence(application_, "", diary_, work_);
    sequence.Load();
    sequence.Tick();
    EXPECT_THAT(diary_.lines, ElementsAre("Version: 1.4.6", "show")) << "the first tick has no step";
    std::string stored;
    test_.settings.fReadValue("HKLM", "Software\\Quillmere Software\\Tallix\\Reports", "Version", "S", "",
                              stored);
    EXPECT_EQ(stored, "1.4.6");
    diary_.lines.clear();
    for (int step = 0; step < kStartupSteps; ++step) sequence.Tick();
    EXPECT_THAT(diary_.lines, ElementsAre("0 Loading Preferences...", "1 Reading Reports...",
                                          "2 Testing DB Connection...", "3 Checking Folder Structure...",
                                          "4 Loading UI...", "load login", "serve", "unload", "show login"));
}

TEST_F(StartupSequenceTest, UnattendedRunsStayHiddenAndEndByThemselves) {
    const std::string path = (test_.Folder() / "Daily Calls.SSR").string();
    ASSERT_TRUE(WriteIniKey("General", "User", "Anna", path));
    for (const auto& [commandLine, work] : {std::pair('"' + path + '"', "report for Anna"),
                                            {"/nowhere/Daily.SSR", "report for "},
                                            {"Backup", "dump"}}) {
        diary_.lines.clear();
        Start(commandLine);
        EXPECT_THAT(Outcome(), ElementsAre("4 Loading UI...", work, "serve", "unload"));
        EXPECT_THAT(diary_.lines, testing::Not(testing::Contains("show")));
    }
    Start("backup");
    EXPECT_THAT(Outcome(), ElementsAre("4 Loading UI...", "serve", "unload"));
}

TEST_F(StartupSequenceTest, StoredSettingsWinAndEmptyOnesGiveWayToTheDefaults) {
    const char* const names[] = {"SQLUser", "SQLPass", "ReportsLocation", "DocsLocation", "Lang", "Currency"};
    const std::string home = home_.string();
    const std::string elsewhere = (test_.Folder() / "elsewhere").string();
    std::filesystem::create_directories(test_.Folder() / "elsewhere/Reports");
    using Values = std::vector<std::string>;
    const Values defaults = {"Tallix", "norvadat", home, home + "\\Company Docs", "1033", "\u00A3"};
    const Values own = {"sa", "x", elsewhere, "/docs", "1036", "\u20AC"};
    for (const auto& [type, kind, stored, expected] :
         {std::tuple("", DatabaseKind::Unknown, Values(6), defaults),
          {"2", DatabaseKind::SqlServer, own, own}}) {
        test_.settings.Write("DBType", type);
        for (std::size_t i = 0; i < own.size(); ++i) test_.settings.Write(names[i], stored[i]);
        Start("");
        const Session& session = application_.session;
        EXPECT_EQ(session.database.kind, kind);
        EXPECT_EQ((Values{session.database.user, session.database.password, session.ReportsLocation,
                          session.DocsLocation, session.Lang, session.Currency}),
                  expected);
    }
    EXPECT_TRUE(test_.prompts.messages.empty());
}

TEST_F(StartupSequenceTest, WithoutADatabaseAddressSettingsAreAskedForWhateverTheRun) {
    test_.settings.Write("DBIP", "");
    for (const char* commandLine : {"", "Backup"}) {
        Start(commandLine);
        EXPECT_THAT(Outcome(), ElementsAre("2 Testing DB Connection...", "settings required", "unload"));
    }
}

TEST_F(StartupSequenceTest, EveryMissingFolderHasItsOwnMessage) {
    for (const auto& [removed, messages] :
         {std::pair("Company Docs", 1U), {"Reports/Standard", 2U}, {"Reports", 4U}}) {
        std::filesystem::remove_all(home_ / removed);
        test_.prompts.messages.clear();
        Start("Backup");
        EXPECT_EQ(test_.prompts.messages.size(), messages) << removed;
        EXPECT_THAT(Outcome(), ElementsAre("3 Checking Folder Structure...", "unload"));
    }
    EXPECT_EQ(test_.prompts.messages.front().icon, MessageIcon::Critical);
}

TEST(DecideRun, DecidesByTheRawText) {
    for (const auto& [commandLine, path] :
         {std::pair("/t/Two  Words.SSR", "/t/Two  Words.SSR"),
          {"  /t/Daily.SSR", "/t/Daily.SSR"},
          {"  \"/t/A Day.SSR\"", "/t/A Day.SSR"},
          {".SSR", ".SSR"},
          {"\"/t/Daily.SSR\u00A3", "/t/Daily.SSR"}}) {  // one character, two bytes
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
