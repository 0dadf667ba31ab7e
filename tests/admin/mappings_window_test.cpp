#include "admin/mappings_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "foundation/form_names.h"
#include "foundation/ini_file.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

constexpr char kLine[] = "01/02 10:15 201 T001";

class MappingsWindowTest : public test::WindowTest {
protected:
    MappingsWindowTest() {
        world.application.folder = world.Folder() / "ReportsTool";
        forms.Register(kOptionsForm, [this] { return std::make_unique<ui::Form>(forms, "Options"); });
        forms.Register(kMappingsForm,
                       [this] { return std::make_unique<MappingsWindow>(forms, world.application); });
        world.Insert("tblrawdata", {{"Data", kLine}, {"SiteID", "001"}});
        forms.Show(kMappingsForm);
    }

    QWidget& Window() { return *forms.Find(kMappingsForm); }
    QPushButton& Button(const QString& caption) { return test::Captioned<QPushButton>(Window(), caption); }
    ui::ListView& List() { return *Window().findChild<ui::ListView*>(); }
    QPlainTextEdit& Sample() { return *Window().findChild<QPlainTextEdit*>(); }

    template <typename Input>
    Input& Labelled(const QString& label) {
        return dynamic_cast<Input&>(*test::Captioned<QLabel>(Window(), label).buddy());
    }

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
        Button(item).click();
        QTextCursor cursor = Sample().textCursor();
        cursor.setPosition(start);
        cursor.setPosition(start + length, QTextCursor::KeepAnchor);
        Sample().setTextCursor(cursor);
        Button("Map To Field").click();
    }

    void SelectAndPress(int row, const QString& caption) {
        List().setCurrentIndex(List().Rows().index(row, 0));
        Button(caption).click();
    }

    test::TestApplication world;
};

TEST_F(MappingsWindowTest, MapsWhatIsSelectedInASample) {
    Labelled<QComboBox>("Site:").setCurrentText("001");
    Button("Get Data").click();
    EXPECT_EQ(Sample().toPlainText(), kLine);
    Map("Date:", 0, 5);
    EXPECT_EQ(Boxes("Date:"), "1-5");
    Button("Time:").click();
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
    Labelled<QLineEdit>("Mapping Name:").setText("Hall");
    Button("Save Mapping").click();
    EXPECT_THAT(List().Rows().All(), testing::ElementsAre(ui::ListRow{"<Create New>"}, ui::ListRow{"Hall"}));
    Button("Reset Fields").click();
    SelectAndPress(0, "Select");
    EXPECT_EQ(Labelled<QLineEdit>("Mapping Name:").text(), "");
    SelectAndPress(1, "Select");
    EXPECT_EQ(Boxes("Account:"), "3-4");
    SelectAndPress(0, "Delete");
    EXPECT_EQ(List().Rows().Count(), 2);
    SelectAndPress(1, "Delete");
    EXPECT_EQ(List().Rows().Count(), 1);
    EXPECT_TRUE(ReadMappingNames(world.application.session).empty());
}

TEST_F(MappingsWindowTest, EditsWhatTheImporterGoesByAndReturnsToTheOptions) {
    std::filesystem::create_directory(world.Folder() / "Importer");
    Button("Importer").click();
    Labelled<QLineEdit>("Orig Number:").setText("9");
    Button("Save Changes").click();
    EXPECT_EQ(ReadIniKey("Values", "OrigNum", world.Folder() / "Importer/CSV.ini"), "9");
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_EQ(forms.Find(kMappingsForm), nullptr);
    EXPECT_TRUE(forms.Find(kOptionsForm)->isVisible());
}

}  // namespace
}  // namespace tallix
