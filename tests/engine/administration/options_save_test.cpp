#include "administration/options_save.h"

#include <gmock/gmock.h>

#include <regex>
#include <tuple>

#include "administration/accounts.h"
#include "administration/address_book.h"
#include "administration/user_groups.h"
#include "session/access_log.h"
#include "support/run_program.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;
using testing::UnorderedElementsAreArray;

class OptionsSaveTest : public testing::Test {
protected:
    OptionsSaveTest() {
        std::filesystem::create_directories(Collector());
        world.Insert("tblextensions", {{"ExtensionNo", "201"}});
        screen.extensions = {{"305", "Bob"}};
        screen.values = LoadOptions(world.application);
        for (auto& [key, value] : screen.values) {
            value = "A\r\n" + key + " £";
            if (key.ends_with(".dat")) continue;
            using enum SettingKind;
            const SettingControl& control = SettingOf(key).control;
            if (control.kind == Colour) value = "00100" + std::to_string(1000 + key[3]);
            if (control.kind == Options || control.kind == Switch) value = control.choices.back().stored;
        }
    }

    std::filesystem::path Collector() const { return world.Folder() / "Collector"; }

    std::string Extensions() const { return world.Rows("SELECT ExtensionNo FROM tblextensions"); }

    /// The names in the file of the settings, which is written in the order of the save.
    std::string Written() {
        const std::string hive = test::ReadBytes(world.Folder() / "settings/HKLM.reg");
        const std::regex entry("\n\"([A-Za-z0-9]+)\"=");
        std::string names;
        for (std::sregex_iterator found(hive.begin(), hive.end(), entry), end; found != end; ++found) {
            names += found->str(1) + " ";
        }
        return names;
    }

    test::TestApplication world;
    OptionsOnScreen screen;
};

TEST_F(OptionsSaveTest, EverySettingComesBackAsItWasSaved) {
    SaveOptions(world.application, screen);
    for (const auto& [key, value] : screen.values) {
        if (key.ends_with(".dat")) continue;
        EXPECT_EQ(world.settings.Read(key), value) << key;
    }
    EXPECT_EQ(world.settings.Read("LocalIP"), "A\r\nCurrency £");
    EXPECT_EQ(test::ReadBytes(Collector() / "COMM.dat"), "A\r\nCOMM.dat \xA3\r\n");
    EXPECT_EQ(LoadOptions(world.application), screen.values);
}

const std::string kCollectionKeys =
    "SwitchComm SwitchBaud SwitchParity SwitchBits SwitchStop CommMethod AreaCode LocalIP ";
const std::string kGeneralKeys =
    "CostCompute ReportAlign ListenFeed ListenPort Lang UseProxy ProxyIP ProxyPort Currency ";
constexpr char kServiceKeys[] =
    "DebugLogging SMTPServer SMTPPort SMTPUser SMTPPass SMTPEmail SMTPAuth SMTPSSL TimeOpen TimeClosed ";
constexpr char kReportKeys[] =
    "ReportsLocation DocsLocation LostCalls V1Reports Providers rptTC rptTHC rptTDC rptTBC ";

TEST_F(OptionsSaveTest, WritesTheSettingsInTheirOrderAroundTheTaskAndTheExtensions) {
    std::string beforeTask;
    world.events.onServe = [&] {
        world.events.onServe = {};
        beforeTask = Written();
        EXPECT_EQ(Extensions(), "305|\n");
    };
    SaveOptions(world.application, screen);
    EXPECT_EQ(beforeTask, kCollectionKeys + kGeneralKeys + kServiceKeys);
    EXPECT_EQ(Written(), beforeTask + kReportKeys);
    EXPECT_NE(world.crontab.Text(), "");
    EXPECT_EQ(world.prompts.messages.back().text, "Settings saved!");
    EXPECT_EQ(ReadAccessLog(world.application.session).at(0).back(), "System Settings Saved");
}

TEST_F(OptionsSaveTest, AFailureEndsTheSaveAndLosesTheExtensions) {
    for (const auto& [statement, hasCollector, written] :
         std::vector<std::tuple<const char*, bool, std::string>>{
             {"SELECT 1", false, kCollectionKeys},
             {"CREATE TRIGGER refusal BEFORE INSERT ON tblextensions BEGIN SELECT RAISE(ABORT, 'no'); END",
              true, kCollectionKeys + kGeneralKeys},
             {"DROP TABLE tblextensions", true, ""}}) {
        std::filesystem::remove_all(world.Folder() / "settings");
        std::filesystem::remove_all(Collector());
        if (hasCollector) std::filesystem::create_directories(Collector());
        world.Execute(statement);
        EXPECT_THROW(SaveOptions(world.application, screen), std::runtime_error) << statement;
        EXPECT_EQ(Written(), written) << statement;
        EXPECT_EQ(std::filesystem::exists(Collector() / "IP.dat"), written.find("Lang") != written.npos);
        EXPECT_TRUE(written.empty() || Extensions().empty()) << statement;
    }
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty());
}

// The later save wins, for settings and for the extensions, unless both saves emptied the
// table before either filled it.
TEST_F(OptionsSaveTest, TwoAdministratorsAtOnceLoseNothingOfEachOther) {
    constexpr int kRounds = 2;
    Application& program = world.application;
    world.settings.Write("DBIP", "of nobody");
    OptionsOnScreen others = screen;
    others.extensions = {{"401", "Cid"}, {"402", "Dan"}};
    for (auto& [key, value] : others.values) value += value.ends_with("£") ? " of Bob, and longer" : "";
    const auto administer = [&](const std::string& user, const OptionsOnScreen& shown) {
        program.session.CurrentUser = user;
        for (int round = 0; round < kRounds; ++round) {
            const std::string name = user + std::to_string(round);
            AddAccount(program, {name, "x", "@", "", {}});
            AddUserGroup(program.session, name, AccessRights::All());
            AddKnownNumber(program.session, {name, name});
            SaveOptions(program, shown);
        }
        return world.prompts.messages.size() == kRounds;  // only "Settings saved!"
    };
    const pid_t other = test::Fork([&] { return administer("Bob", others); });
    EXPECT_TRUE(administer("Ann", screen));
    EXPECT_EQ(test::WaitFor(other), 0);

    EXPECT_EQ(LoadAccounts(program.session).size(), 2 * kRounds);
    EXPECT_EQ(LoadUserGroups(program.session).size(), 2 * kRounds);
    EXPECT_EQ(LoadAddressBook(program.session).size(), 2 * kRounds);
    EXPECT_EQ(ReadAccessLog(program.session).size(), 4 * kRounds);
    std::vector<Extension> both = screen.extensions;
    both.insert(both.end(), others.extensions.begin(), others.extensions.end());
    EXPECT_THAT(LoadExtensions(program.session),
                AnyOf(UnorderedElementsAreArray(screen.extensions),
                      UnorderedElementsAreArray(others.extensions), UnorderedElementsAreArray(both)));
    EXPECT_EQ(world.settings.Read("DBIP"), "of nobody");
    for (const auto& [key, value] : LoadOptions(program)) {
        EXPECT_THAT(value, AnyOf(screen.values.at(key), others.values.at(key))) << key;
    }
    EXPECT_THAT(world.crontab.Text(), Not(HasSubstr("\n#"))) << "one task";
}

TEST_F(OptionsSaveTest, ASettingThatCannotBeWrittenShowsItsMessageAndStopsNothing) {
    std::filesystem::remove_all(world.Folder() / "settings");
    std::ofstream(world.Folder() / "settings") << "no folder";
    screen.automaticBackup = AutomaticBackup::Off;
    SaveOptions(world.application, screen);
    const std::size_t settings = screen.values.size() - kCommandFiles.size() + 1;  // and LocalIP
    ASSERT_EQ(world.prompts.messages.size(), settings + 1);
    EXPECT_EQ(world.prompts.messages.front().title, "fWriteValue");
    EXPECT_EQ(world.prompts.messages.back().text, "Settings saved!");
    EXPECT_EQ(Extensions(), "305|\n");
}

TEST_F(OptionsSaveTest, WhatDependsOnASwitchKeepsItsValueWhileTheSwitchIsOff) {
    for (const char* key : {"UseProxy", "ListenFeed"}) screen.values[key] = "0";
    for (const char* key : {"ProxyIP", "ProxyPort", "ListenPort"}) world.settings.Write(key, "old");
    screen.values["Currency"] = "Any";
    SaveOptions(world.application, screen);
    for (const char* key : {"ProxyIP", "ProxyPort", "ListenPort"}) EXPECT_EQ(world.settings.Read(key), "old");
    EXPECT_EQ(world.settings.Read("LocalIP"), "");
}

TEST_F(OptionsSaveTest, ShowsWhatIsStoredByTheRuleOfEachSetting) {
    const std::string folder = world.application.folder.string();
    const std::tuple<const char*, const char*, std::string> rules[] = {
        {"LostCalls", "yes", "1"},
        {"CostCompute", "", "1"},
        {"CostCompute", "2", "0"},
        {"CommMethod", "3", "1"},
        {"Lang", "1", "1033"},
        {"Lang", "1041", "1041"},
        {"Currency", "?", "?"},
        {"ListenPort", "", "1752"},
        {"rptTC", "256000000", "002001118"},
        {"rptTC", "000000255", "000000255"},
        {"ReportsLocation", "", folder},
        {"DocsLocation", "", folder + "\\Company Docs"}};
    for (const auto& [key, stored, shown] : rules) {
        world.settings.Write(key, stored);
        EXPECT_EQ(LoadOptions(world.application).at(key), shown) << key << " " << stored;
    }
}

}  // namespace
}  // namespace tallix
