#include "admin/sites_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "foundation/access_log.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

class SitesWindowTest : public test::WindowTest {
protected:
    SitesWindowTest() {
        forms.Register(kOptionsForm, [this] { return std::make_unique<ui::Form>(forms, "Options"); });
        forms.Register(kSitesForm,
                       [this] { return std::make_unique<SitesWindow>(forms, world.application); });
        world.Insert("tblphonemapping", {{"Mapping_Name", "Reception"}});
        world.Insert("tblsite", {{"ID", "1"}, {"Name", "Head"}, {"VM", "500"}, {"3PTDatabase", "2"}});
        forms.Show(kSitesForm);
    }

    QWidget& Window() { return *forms.Find(kSitesForm); }
    QPushButton& Button(const QString& caption) { return test::Captioned<QPushButton>(Window(), caption); }
    ui::ListView& List() { return *Window().findChild<ui::ListView*>(); }
    void SelectFirst() { List().setCurrentIndex(List().Rows().index(0, 0)); }

    template <typename Input>
    Input& Labelled(const QString& label) {
        return dynamic_cast<Input&>(*test::Captioned<QLabel>(Window(), label).buddy());
    }

    QString Enabled() {
        QString letters;
        for (const char* caption :
             {"Add Site", "Edit Site", "Delete Site", "Save and Exit", "Exit Without Saving"})
            letters += Button(caption).isEnabled() ? caption[0] : '-';
        return letters;
    }

    test::TestApplication world;
};

TEST_F(SitesWindowTest, AddsAndEditsInTheEntryFrame) {
    EXPECT_EQ(Enabled(), "A--SE");
    Button("Add Site").click();
    EXPECT_EQ(Enabled(), "-----");
    QTest::keyClicks(&Labelled<QLineEdit>("Site Name:"), "West");
    auto& ip = Labelled<QLineEdit>("Switch IP:");
    QTest::keyClicks(&ip, "1.2.3");
    EXPECT_TRUE(test::Captioned<QCheckBox>(Window(), "Include Site In Collector Service").isChecked());
    Labelled<QComboBox>("Mappings:").setCurrentText("Reception");
    Button("Save").click();
    EXPECT_EQ(world.prompts.messages.back().title, "IP Error");
    EXPECT_EQ(Enabled(), "-----") << "the frame stays open";
    ip.setText("1.2.3.4");
    QTest::keyClick(&ip, Qt::Key_Return);
    EXPECT_EQ(List().Rows().All().back(), (ui::ListRow{"2", "West", "", "", "", "", "", "", "", "1.2.3.4", "",
                                                       "Reception", "C", "0", "", "", ""}));
    EXPECT_EQ(Enabled(), "A--SE");

    SelectFirst();
    EXPECT_EQ(Enabled(), "AEDSE");
    Button("Edit Site").click();
    EXPECT_EQ(Labelled<QLineEdit>("VM:").text(), "500");
    EXPECT_EQ(Labelled<QComboBox>("3PT System:").currentText(), "FreePBX");
    QTest::keyClick(&Labelled<QLineEdit>("VM:"), Qt::Key_Escape);
    EXPECT_EQ(Enabled(), "AEDSE");
}

TEST_F(SitesWindowTest, AsksBeforeItDeletesAndBeforeItLeaves) {
    SelectFirst();
    world.prompts.answers = {Answer::Yes};
    Button("Delete Site").click();
    EXPECT_EQ(List().Rows().Count(), 0);
    Button("Exit Without Saving").click();
    EXPECT_EQ(world.prompts.messages.back().title, "Settings Changed");
    ASSERT_TRUE(Window().isVisible());
    world.prompts.answers = {Answer::Yes};
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_EQ(forms.Find(kSitesForm), nullptr);
    EXPECT_TRUE(forms.Find(kOptionsForm)->isVisible());
}

TEST_F(SitesWindowTest, RestartsTheServicesOnlyWhenAskedTo) {
    world.application.folder = world.Folder() / "ReportsTool";
    std::filesystem::create_directory(world.Folder() / "Processor");
    std::ofstream(world.Folder() / "Processor/Service_Off.bat") << "sleep 0.1; echo off >> said\n";
    std::ofstream(world.Folder() / "Processor/service_on.bat") << "echo on >> said\n";
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        forms.Show(kSitesForm);
        world.prompts.answers = {answer};
        Button("Save and Exit").click();
        EXPECT_EQ(test::ReadBytes(world.Folder() / "said"), answer == Answer::Yes ? "off\non\n" : "");
        EXPECT_EQ(world.prompts.messages.back().text, "Site Settings saved!");
        EXPECT_EQ(ReadAccessLog(world.application.session).back().back(), "Site Settings Saved");
    }
}

}  // namespace
}  // namespace tallix
