#include "windows/administration/sites_window.h"

#include <gtest/gtest.h>

#include <QTest>

#include "support/form_test.h"

namespace tallix {
namespace {

class SitesWindowTest : public test::FormTest {
protected:
    SitesWindowTest() {
        AddEmptyForms({kOptionsForm});
        UnderTest<SitesWindow>(kSitesForm, world.application);
        world.Insert("tblphonemapping", {{"Mapping_Name", "Reception"}});
        world.Insert("tblsite", {{"ID", "1"}, {"Name", "Head"}, {"VM", "500"}, {"3PTDatabase", "2"}});
    }

    QString Enabled() {
        QString letters;
        for (const char* caption :
             {"Add Site", "Edit Site", "Delete Site", "Save and Exit", "Exit Without Saving"})
            letters += Button(caption).isEnabled() ? caption[0] : '-';
        return letters;
    }
};

TEST_F(SitesWindowTest, AddsAndEditsInThePanel) {
    EXPECT_EQ(Enabled(), "A--SE");
    Click("Add Site");
    EXPECT_EQ(Enabled(), "-----");
    QTest::keyClicks(&Labelled("Site Name:"), "West");
    auto& ip = Labelled("Switch IP:");
    QTest::keyClicks(&ip, "1.2.3");
    EXPECT_TRUE(Captioned<QCheckBox>("Include Site In Collector Service").isChecked());
    Labelled<QComboBox>("Mappings:").setCurrentText("Reception");
    Click("Save");
    EXPECT_EQ(LastMessage().title, "IP Error");
    EXPECT_EQ(Enabled(), "-----") << "the panel stays open";
    ip.setText("1.2.3.4");
    QTest::keyClick(&ip, Qt::Key_Return);
    EXPECT_EQ(Rows().back(), (std::vector<std::string>{"2", "West", "", "", "", "", "", "", "", "1.2.3.4", "",
                                                       "Reception", "C", "0", "", "", ""}));
    EXPECT_EQ(Enabled(), "A--SE");

    SelectRow(0);
    EXPECT_EQ(Enabled(), "AEDSE");
    Click("Edit Site");
    EXPECT_EQ(Labelled("VM:").text(), "500");
    EXPECT_EQ(Labelled<QComboBox>("3PT System:").currentText(), "FreePBX");
    QTest::keyClick(&Labelled("VM:"), Qt::Key_Escape);
    EXPECT_EQ(Enabled(), "AEDSE");
}

TEST_F(SitesWindowTest, AsksBeforeItDeletesAndBeforeItLeaves) {
    SelectRow(0);
    world.prompts.answers = {Answer::Yes};
    Click("Delete Site");
    EXPECT_EQ(Rows().size(), 0U);
    Click("Exit Without Saving");
    EXPECT_EQ(LastMessage().title, "Settings Changed");
    ASSERT_TRUE(IsVisible(kSitesForm));
    world.prompts.answers = {Answer::Yes};
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_FALSE(IsLoaded());
    EXPECT_TRUE(IsVisible(kOptionsForm));
}

TEST_F(SitesWindowTest, RestartsTheServicesOnlyWhenAskedTo) {
    world.application.folder = world.Folder() / "ReportsTool";
    std::filesystem::create_directory(world.Folder() / "Processor");
    std::ofstream(world.Folder() / "Processor/Service_Off.bat") << "sleep 0.1; echo off >> said\n";
    std::ofstream(world.Folder() / "Processor/service_on.bat") << "echo on >> said\n";
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        world.prompts.answers = {answer};
        Click("Save and Exit");
        EXPECT_EQ(test::ReadBytes(world.Folder() / "said"), answer == Answer::Yes ? "off\non\n" : "");
        EXPECT_EQ(LastMessage().text, "Site Settings saved!");
        EXPECT_EQ(Logged().back(), "Site Settings Saved");
    }
}

}  // namespace
}  // namespace tallix
