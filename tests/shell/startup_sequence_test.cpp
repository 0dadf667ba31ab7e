#include "shell/startup_sequence.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <vector>

#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down everything that happens, in order.
class Diary : public SplashView, public EventQueue {
public:
    void ShowVersion(const std::string& text) override { lines.push_back(text); }
    void ShowSplash() override { lines.emplace_back("show"); }
    void ShowStep(std::string_view caption, int tick) override {
        lines.push_back(std::to_string(tick) + " " + std::string(caption));
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
        for (const char* folder : {"settings", "home/Reports/Standard", "home/Company Docs"}) {
            std::filesystem::create_directories(root_ / folder);
        }
        settings_.Write("DBIP", "10.0.0.5");
    }

    /// Runs a whole sequence, with more ticks than it needs.
    void Start(const std::string& commandLine) {
        StartupSequence sequence(application_, commandLine, diary_, Work());
        sequence.Load();
        for (int tick = 0; tick < 9; ++tick) sequence.Tick();
        EXPECT_TRUE(sequence.HasEnded());
    }

    UnattendedWork Work() {
        return {
            [this](const ScheduledReport& report) { diary_.lines.push_back("report for " + report.user); },
            [this] { diary_.lines.emplace_back("dump"); }};
    }

    /// What happened from the last caption on.
    std::vector<std::string> Outcome() const {
        auto last = diary_.lines.end();
        while (last != diary_.lines.begin() && !(--last)->ends_with("...")) {
        }
        return {last, diary_.lines.end()};
    }

    test::TempFolder folder_;
    const std::filesystem::path root_ = folder_.Path();
    test::ScriptedPrompts prompts_;
    test::FixedClock clock_;
    Diary diary_;
    SettingsStore settings_{root_ / "settings", root_ / "settings", prompts_};
    Application application_{root_ / "home", root_, Version{4, 12, 7}, settings_, prompts_, clock_, diary_};
};

TEST_F(StartupSequenceTest, APersonIsLedThroughEveryStepToTheLogin) {
    StartupSequence sequence(application_, "", diary_, Work());
    sequence.Load();
    sequence.Tick();
    EXPECT_THAT(diary_.lines, ElementsAre("Version: 4.12.7", "show")) << "the first tick has no step";
    std::string stored;
    settings_.fReadValue("HKLM", "Software\\Quillmere Software\\Tallix\\Reports", "Version", "S", "", stored);
    EXPECT_EQ(stored, "4.12.7");

    diary_.lines.clear();
    for (int step = 0; step < kStartupSteps; ++step) sequence.Tick();

    EXPECT_THAT(diary_.lines, ElementsAre("0 Loading Preferences...", "1 Reading Reports...",
                                          "2 Testing DB Connection...", "3 Checking Folder Structure...",
                                          "4 Loading UI...", "load login", "serve", "unload", "show login"));
    EXPECT_THAT(prompts_.messages, IsEmpty());
}

TEST_F(StartupSequenceTest, UnattendedRunsStayHiddenAndEndByThemselves) {
    const std::string path = folder_.Write("Daily Calls.SSR", "[General]\nUser=Anna\n").string();
    const std::vector<std::pair<std::string, std::vector<std::string>>> runs = {
        {'"' + path + '"', {"4 Loading UI...", "report for Anna", "serve", "unload"}},
        {root_.string() + "\\Daily Calls.SSR", {"4 Loading UI...", "report for Anna", "serve", "unload"}},
        {"/nowhere/Daily.SSR", {"4 Loading UI...", "report for ", "serve", "unload"}},
        {"Backup", {"4 Loading UI...", "dump", "serve", "unload"}},
        {"backup", {"4 Loading UI...", "serve", "unload"}},
    };
    for (const auto& [commandLine, outcome] : runs) {
        diary_.lines.clear();
        Start(commandLine);
        EXPECT_EQ(Outcome(), outcome) << commandLine;
        EXPECT_THAT(diary_.lines, testing::Not(testing::Contains("show")));
    }
}

TEST_F(StartupSequenceTest, AFailureOfTheUnattendedWorkComesThrough) {
    StartupSequence sequence(application_, "Backup", diary_,
                             {nullptr, [] { throw std::runtime_error("disk full"); }});
    for (int tick = 0; tick < 5; ++tick) sequence.Tick();
    EXPECT_THROW(sequence.Tick(), std::runtime_error);
}

TEST_F(StartupSequenceTest, EmptySettingsGiveWayToTheDefaults) {
    Start("");

    const Session& session = application_.session;
    const std::string home = (root_ / "home").string();
    EXPECT_EQ(session.DBType, "");
    EXPECT_EQ(session.StrQuote, "\"");
    EXPECT_EQ(session.SQLUser, "Tallix");
    EXPECT_EQ(session.SQLPass, "norvadat");
    EXPECT_EQ(session.DBIP, "10.0.0.5");
    EXPECT_EQ(session.ReportsLocation, home);
    EXPECT_EQ(session.DocsLocation, home + "\\Company Docs");
    EXPECT_EQ(session.Lang, "1033");
    EXPECT_EQ(session.Currency, "\u00A3");
}

TEST_F(StartupSequenceTest, StoredSettingsWin) {
    std::filesystem::create_directories(root_ / "elsewhere/Reports");
    const std::string elsewhere = (root_ / "elsewhere").string();
    for (const auto& [name, value] :
         std::vector<std::pair<std::string, std::string>>{{"DBType", "2"},
                                                          {"SQLUser", "sa"},
                                                          {"SQLPass", "x"},
                                                          {"ReportsLocation", elsewhere},
                                                          {"DocsLocation", "/docs"},
                                                          {"Lang", "1036"},
                                                          {"Currency", "\u20AC"}}) {
        settings_.Write(name, value);
    }

    Start("");

    const Session& session = application_.session;
    EXPECT_EQ(session.StrQuote, "'");
    EXPECT_THAT((std::vector{session.DBType, session.SQLUser, session.SQLPass, session.ReportsLocation,
                             session.DocsLocation, session.Lang, session.Currency}),
                ElementsAre("2", "sa", "x", elsewhere, "/docs", "1036", "\u20AC"));
    EXPECT_THAT(prompts_.messages, IsEmpty());
}

TEST_F(StartupSequenceTest, WithoutADatabaseAddressSettingsAreAskedForWhateverTheRun) {
    settings_.Write("DBIP", "");
    for (const char* commandLine : {"", "Backup"}) {
        Start(commandLine);
        EXPECT_THAT(Outcome(), ElementsAre("2 Testing DB Connection...", "settings required", "unload"));
    }
}

TEST_F(StartupSequenceTest, EveryMissingFolderHasItsOwnMessage) {
    struct Damage {
        const char* removed;
        std::size_t messages;
    };
    for (const Damage& damage :
         {Damage{"home/Company Docs", 1}, Damage{"home/Reports/Standard", 2}, Damage{"home/Reports", 4}}) {
        std::filesystem::remove_all(root_ / damage.removed);
        prompts_.messages.clear();
        Start("Backup");
        EXPECT_EQ(prompts_.messages.size(), damage.messages) << damage.removed;
        EXPECT_THAT(Outcome(), ElementsAre("3 Checking Folder Structure...", "unload"));
    }
    const Message& message = prompts_.messages.front();
    EXPECT_EQ(message.title, "Tallix Reports");
    EXPECT_EQ(message.text, "There is a problem with your Tallix Reports installation. Please reinstall!");
    EXPECT_EQ(message.icon, MessageIcon::Critical);
}

}  // namespace
}  // namespace tallix
