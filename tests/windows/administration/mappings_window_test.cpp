#include "windows/administration/mappings_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "compat/ini_file.h"
#include "support/form_test.h"

namespace tallix {
namespace {

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
        for (auto* box : Window().findChildren<QLineEdit*>()) {
            if (box->accessibleName() == item + " " + which + " character") return box;
        }
        return nullptr;
    }

    QString Boxes(const QString& item) {
        return Box(item, "first")->text() + "-" + Box(item, "last")->text();
    }

    // The names of the lamps of the first three items, as one text.
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

    void SelectAndPress(int row, const QString& caption) {
        SelectRow(row);
        Click(caption);
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
        const QString label = QString::fromUtf8(item.label.data());
        QTest::keyClicks(Box(label, "first"), "3");
        QTest::keyClicks(Box(label, "last"), "4");
    }
    EXPECT_EQ(Lamps(), "Date: mapped; Time: mapped; Duration: mapped; ");
    Type("Mapping Name:", "Hall");
    Click("Save Mapping");
    EXPECT_THAT(Rows(),
                testing::ElementsAre(testing::ElementsAre("<Create New>"), testing::ElementsAre("Hall")));
    Click("Reset Fields");
    SelectAndPress(0, "Select");
    EXPECT_EQ(Labelled("Mapping Name:").text(), "");
    SelectAndPress(1, "Select");
    EXPECT_EQ(Boxes("Account:"), "3-4");
    SelectAndPress(0, "Delete");
    EXPECT_EQ(Rows().size(), 2U);
    SelectAndPress(1, "Delete");
    EXPECT_EQ(Rows().size(), 1U);
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
    EXPECT_FALSE(IsLoaded());
    EXPECT_TRUE(IsVisible(kOptionsForm));
}

}  // namespace
}  // namespace tallix
