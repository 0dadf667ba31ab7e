#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include "settings/page_setup.h"
#include "support/faults.h"
#include "support/run_program.h"

namespace tallix {
namespace {

using test::ReadBytes;

class SettingsStoreTest : public ::testing::Test {
protected:
    std::string ReadAs(std::string_view root, std::string_view path, std::string_view name,
                       std::string_view type, std::string_view defaultText = "") {
        std::string result = "left over";
        settings_.fReadValue(root, path, name, type, defaultText, result);
        return result;
    }

    std::ptrdiff_t Files() const {
        return std::distance(std::filesystem::directory_iterator(hive_.parent_path()), {});
    }

    test::TempFolder folder_;
    test::ScriptedPrompts prompts_;
    SettingsStore settings_{folder_.Path() / "machine", folder_.Path() / "user", prompts_};
    std::filesystem::path hive_ = folder_.Path() / "machine/HKLM.reg";
};

TEST_F(SettingsStoreTest, KeepsEveryTextAsItWasWritten) {
    for (const char* text : {"a\"b\\c\\", "", "two\r\nlines", "£ Ω 𝄞", " blanks ", "[x];\"y\"=z"}) {
        settings_.Write("Name \"with\\ all", text);
        EXPECT_EQ(settings_.Read("NAME \"WITH\\ ALL"), text);
    }
    EXPECT_EQ(std::filesystem::status(hive_).permissions(), std::filesystem::perms(0640));
}

TEST_F(SettingsStoreTest, EachRootHasItsHiveAndBooleansAreTwoBytes) {
    for (const char* root : {"HKLM", "hkcu", "HKU", "HKDD", "hkcc", "HKCR"})
        settings_.fWriteValue(root, "P", "text", "s", root);
    settings_.fWriteValue("HKLM", "P", "on", "B", "True");
    settings_.fWriteValue("HKLM", "P", "off", "B", "0");
    EXPECT_EQ(ReadBytes(hive_), "[P]\n\"text\"=\"HKLM\"\n\"on\"=hex:01,00\n\"off\"=hex:00,00\n");
    EXPECT_EQ(ReadBytes(folder_.Path() / "user/HKCU.reg"), "[P]\n\"text\"=\"hkcu\"\n");
    EXPECT_EQ(ReadAs("Hkcr", "p", "TEXT", "S"), "HKCR");
    EXPECT_EQ(ReadAs("HKLM", "P", "on", "B"), "True");
    EXPECT_EQ(ReadAs("HKLM", "P", "off", "B", "True"), "False");
    EXPECT_EQ(ReadAs("HKLM", "P", "text", "B", "kept"), "kept");
    EXPECT_TRUE(prompts_.messages.empty());
}

TEST_F(SettingsStoreTest, DamagedLinesAreNeitherReadNorLost) {
    const std::string head = "[" + std::string(kApplicationKey) + "]\n";
    const std::string later = "\"Later\" = \"in C:\\Temp\" ";
    const std::string damaged =
        "\"Above\"=\"all\"\n; \"DBIP\"=\"comment\"\n" + head +
        "\"DBIP\"=\"unclosed\n\"DBIP\" \"no sign\"\nDBIP=bare\n\"DBIP\"=\"a\" junk\n\"DBIP\"=hex:1\n"
        "\"DBIP\"=hex:01,\n\"DBIP\"=\"end\\\"\n\"Currency\"=\"\xA3\"\n\xFF\xFE wrong bytes\n[Half\n"
        "\"DBIP\"=\"of nobody\"\n" +
        head + later + "\n";
    folder_.Write("machine/HKLM.reg", damaged);
    EXPECT_EQ(settings_.Read("DBIP") + settings_.Read("Above"), "");
    EXPECT_EQ(settings_.Read("Currency"), "£");
    EXPECT_EQ(settings_.Read("Later"), "in C:\\Temp");
    settings_.Write("DBIP", "10.0.0.5");
    settings_.Write("Later", "x");
    std::string expected = damaged;
    expected.insert(expected.find("[Half"), "\"DBIP\"=\"10.0.0.5\"\n");
    expected.replace(expected.find(later), later.size(), "\"Later\"=\"x\"");
    EXPECT_EQ(ReadBytes(hive_), expected);
}

TEST_F(SettingsStoreTest, IniRootsReadIntoABufferOfTheDefaultsLength) {
    const std::string ini = folder_.Write("site.ini", "[S]\nk=value\nyes=12abc\nno=0\nword=True\nempty=\n");
    EXPECT_EQ(ReadAs(ini, "S", "k", "S"), "");
    EXPECT_EQ(ReadAs(ini, "S", "k", "S", "££££"), "val");
    EXPECT_EQ(ReadAs(ini, "S", "absent", "S", "££££"), "£££");
    EXPECT_EQ(ReadAs(ini, "S", "yes", "B"), "True");
    EXPECT_EQ(ReadAs(ini, "S", "no", "B"), "False");
    EXPECT_EQ(ReadAs(ini, "S", "word", "B"), "False");
    EXPECT_EQ(ReadAs(ini, "S", "empty", "B", "kept"), "kept");
    settings_.fWriteValue(ini, "S", "k", "S", "new");
    EXPECT_TRUE(ReadBytes(ini).starts_with("[S]\nk=new\nyes="));
    EXPECT_TRUE(prompts_.messages.empty());
}

TEST_F(SettingsStoreTest, FailuresShowTheirMessages) {
    EXPECT_EQ(ReadAs((folder_.Path() / "absent.ini").string(), "S", "k", "S", "kept"), "kept");
    settings_.fWriteValue("HKXX", "S", "k", "S", "v");
    settings_.fWriteValue("HKLM", "P", "on", "B", "perhaps");
    settings_.fWriteValue("HKLM", "a\n[b]", "k", "S", "v");
    settings_.fWriteValue(folder_.Write("site.ini", "").string(), "S", "k", "B", "True");
    std::string shown;
    for (const Message& message : prompts_.messages) shown += message.title + ": " + message.text + '\n';
    const std::string unread = "fTopKey: Unable to decode registry key or find .ini file.\n";
    const std::string unwritten = "fWriteValue: Unable to write registry or .ini file value.\n";
    EXPECT_EQ(shown, unread + unread + unwritten + unwritten + unwritten + unwritten);
    EXPECT_EQ(prompts_.messages.back().icon, MessageIcon::Exclamation);
}

TEST_F(SettingsStoreTest, WritersAtTheSameTimeLoseNothing) {
    constexpr int kValues = 120;
    std::vector<pid_t> writers;
    for (int first = 0; first < 3; ++first) {
        writers.push_back(test::Fork([&] {
            for (int value = first; value < kValues; value += 3)
                settings_.Write(std::to_string(value), "kept");
            return prompts_.messages.empty();
        }));
    }
    for (const pid_t writer : writers) EXPECT_EQ(test::WaitFor(writer), 0);
    for (int value = 0; value < kValues; ++value)
        EXPECT_EQ(settings_.Read(std::to_string(value)), "kept") << value;
    EXPECT_EQ(Files(), 1);
}

TEST_F(SettingsStoreTest, AKilledWriterLeavesAWholeHive) {
    const std::string first(100'000, 'a');
    const std::string second(100'000, 'b');
    settings_.Write("Value", first);
    for (int round = 0; round < 20; ++round) {
        const pid_t writer = test::Fork([&] {
            for (bool turn = true; true; turn = !turn) settings_.Write("Value", turn ? second : first);
            return true;
        });
        usleep(static_cast<useconds_t>(1000 + 700 * round));
        kill(writer, SIGKILL);
        test::WaitFor(writer);
        const std::string value = settings_.Read("Value");
        EXPECT_TRUE(value == first || value == second);
    }
    settings_.Write("After", "2");
    EXPECT_EQ(settings_.Read("After"), "2") << "the lock of a killed writer is free";
}

TEST_F(SettingsStoreTest, AFullDiskLeavesTheOldHive) {
    settings_.Write("Value", "old");
    const std::string before = ReadBytes(hive_);
    {
        const test::FullDisk full(16);
        settings_.Write("Value", "new");
    }
    EXPECT_FALSE(prompts_.messages.empty()) << "the failed write is reported";
    EXPECT_EQ(ReadBytes(hive_), before);
    EXPECT_EQ(Files(), 1);
}

TEST(PageSetupTest, CodesAreReadAsOnePageShowsThem) {
    for (const auto& [coded, shown] : {std::pair("&bPage &p of &P", "||Page 2 of 10"),
                                       {"", "||"},
                                       {"Left &w&p", "Left 2||"},
                                       {"a&bb&bc&bd", "a|b|c"},
                                       {"Q&&A &", "Q&A &||"}}) {
        const PageLine line = ExpandPageLine(coded, 2, 10);
        EXPECT_EQ(line.left + "|" + line.centre + "|" + line.right, shown) << coded;
    }
}

}  // namespace
}  // namespace tallix
