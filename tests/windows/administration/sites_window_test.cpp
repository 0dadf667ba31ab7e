// The windows of sites and of the mappings that sites use.
#include "windows/administration/sites_window.h"

#include "compat/ini_file.h"
#include "support/form_test.h"
#include "windows/administration/mappings_window.h"

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
        for (const char* caption : {"Add Site", "Edit Site", "Delete Site", "Save and Exit"}) {
            letters += Button(caption).isEnabled() ? caption[0] : '-';
        }
        return letters;
    }
};

TEST_F(SitesWindowTest, AddsAndEditsInThePanel) {
    Click("Add Site");
    EXPECT_EQ(Enabled(), "----");
    QTest::keyClicks(&Labelled("Site Name:"), "West");
    auto& ip = Labelled("Switch IP:");
    QTest::keyClicks(&ip, "1.2.3");
    Labelled<QComboBox>("Mappings:").setCurrentText("Reception");
    Click("Save");
    EXPECT_EQ(LastMessage().title, "IP Error");
    EXPECT_EQ(Enabled(), "----") << "the panel stays open";
    ip.setText("1.2.3.4");
    QTest::keyClick(&ip, Qt::Key_Return);
    EXPECT_EQ(Rows().back(), (std::vector<std::string>{"2", "West", "", "", "", "", "", "", "", "1.2.3.4", "",
                                                       "Reception", "C", "0", "", "", ""}));
    EXPECT_EQ(Enabled(), "A--S");

    SelectRow(0);
    EXPECT_EQ(Enabled(), "AEDS");
    Click("Edit Site");
    EXPECT_EQ(Labelled("VM:").text(), "500");
    EXPECT_EQ(Labelled<QComboBox>("3PT System:").currentText(), "FreePBX");
    QTest::keyClick(&Labelled("VM:"), Qt::Key_Escape);
    EXPECT_EQ(Enabled(), "AEDS");
}

TEST_F(SitesWindowTest, AsksBeforeItDeletesAndBeforeItLeaves) {
    SelectRow(0);
    world.prompts.answers = {Answer::Yes};
    Click("Delete Site");
    EXPECT_TRUE(Rows().empty());
    Click("Exit Without Saving");
    EXPECT_EQ(LastMessage().title, "Settings Changed");
    ASSERT_TRUE(IsVisible(kSitesForm));
    world.prompts.answers = {Answer::Yes};
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_TRUE(!IsLoaded() && IsVisible(kOptionsForm));
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

constexpr char kLine[] = "01/02 10:15 201 T001";

class MappingsWindowTest : public test::FormTest {
protected:
    MappingsWindowTest() {
        world.application.folder = world.Folder() / "ReportsTool";
        AddEmptyForms({kOptionsForm});
        UnderTest<MappingsWindow>(kMappingsForm, world.application);
        world.Insert("tblrawdata", {{"Data", kLine}, {"SiteID", "001"}});
    }

    QPlainTextEdit& Sample() { return *Window().findChild<QPlainTextEdit*>(); }

    QLineEdit* Box(const QString& item, const char* which) {
        const auto boxes = Window().findChildren<QLineEdit*>();
        const QString name = item + " " + which + " character";
        return *std::ranges::find(boxes, name, &QWidget::accessibleName);
    }

    QString Boxes(const QString& item) {
        return Box(item, "first")->text() + "-" + Box(item, "last")->text();
    }

    /// The names of the lamps of the first three items.
    std::string Lamps() {
        QString said;
        for (QWidget* widget : Window().findChildren<QWidget*>()) {
            if (dynamic_cast<const Lamp*>(widget) != nullptr) said += widget->accessibleName() + "; ";
        }
        return said.section("Extension", 0, 0).toStdString();
    }

    void Map(const QString& item, int start, int length) {
        Click(item);
        QTextCursor cursor = Sample().textCursor();
        cursor.setPosition(start);
        cursor.setPosition(start + length, QTextCursor::KeepAnchor);
        Sample().setTextCursor(cursor);
        Click("Map To Field");
    }
};

TEST_F(MappingsWindowTest, MapsWhatIsSelectedInASample) {
    Labelled<QComboBox>("Site:").setCurrentText("001");
    Click("Get Data");
    EXPECT_EQ(Sample().toPlainText(), kLine);
    Map("Date:", 0, 5);
    EXPECT_EQ(Boxes("Date:"), "1-5");
    Click("Time:");
    EXPECT_EQ(Lamps(), "Date: mapped; Time: being mapped; Duration: not mapped; ");
    Map("Internal:", 0, 6);
    EXPECT_EQ(Boxes("Internal:"), "-");
    EXPECT_EQ(Lamps(), "Date: mapped; Time: not mapped; Duration: not mapped; ");
}

TEST_F(MappingsWindowTest, SavesSelectsAndDeletes) {
    for (const MappingItem& item : kMappingItems) {
        QTest::keyClicks(Box(item.label.data(), "first"), "3");
        QTest::keyClicks(Box(item.label.data(), "last"), "4");
    }
    EXPECT_EQ(Lamps(), "Date: mapped; Time: mapped; Duration: mapped; ");
    Type("Mapping Name:", "Hall");
    Click("Save Mapping");
    EXPECT_EQ(Rows(), (std::vector<std::vector<std::string>>{{"<Create New>"}, {"Hall"}}));
    Click("Reset Fields");
    for (const int row : {0, 1}) {
        SelectRow(row);
        Click("Select");
        EXPECT_EQ(Boxes("Account:"), row == 1 ? "3-4" : "-");
    }
    for (const int row : {0, 1}) {
        SelectRow(row);
        Click("Delete");
        EXPECT_EQ(Rows().size(), row == 1 ? 1U : 2U);
    }
    EXPECT_TRUE(ReadMappingNames(world.application.session).empty());
}

TEST_F(MappingsWindowTest, ADoubleClickOnDeleteDeletesOneMapping) {
    for (const char* name : {"Attic", "Hall"}) world.Insert("tblphonemapping", {{"Mapping_Name", name}});
    Window();
    SelectRow(1);
    QTest::mouseClick(&Button("Delete"), Qt::LeftButton);
    QTest::mouseDClick(&Button("Delete"), Qt::LeftButton);
    QTest::mouseRelease(&Button("Delete"), Qt::LeftButton);
    EXPECT_THAT(ReadMappingNames(world.application.session), testing::ElementsAre("Hall"));
    EXPECT_FALSE(Button("Delete").isEnabled());
}

TEST_F(MappingsWindowTest, EditsTheImporterSettingsAndReturnsToTheOptions) {
    std::filesystem::create_directory(world.Folder() / "Importer");
    Click("Importer");
    Type("Orig Number:", "9");
    Click("Save Changes");
    EXPECT_EQ(ReadIniKey("Values", "OrigNum", world.Folder() / "Importer/CSV.ini"), "9");
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_TRUE(!IsLoaded() && IsVisible(kOptionsForm));
}

}  // namespace
}  // namespace tallix
