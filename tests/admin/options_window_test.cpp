#include "admin/options_window.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "foundation/access_rights.h"
#include "foundation/ado/recordset.h"
#include "foundation/database.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/report_preview.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class OptionsWindowTest : public test::WindowTest {
protected:
    OptionsWindowTest() {
        std::filesystem::create_directories(world.Folder() / "Collector");
        world.application.session.CurrentAccess = std::string(kRights, '1');
        for (const char* name : {kMainForm, kSitesForm, kAccessLoggingForm}) {
            forms.Register(name, [this, name] { return std::make_unique<ui::Form>(forms, name); });
        }
        forms.Register(kOptionsForm,
                       [this] { return std::make_unique<OptionsWindow>(forms, world.application); });
    }

    QWidget& Window() {
        if (forms.Find(kOptionsForm) == nullptr) forms.Show(kOptionsForm);
        return *forms.Find(kOptionsForm);
    }
    template <typename Widget>
    Widget& Captioned(const QString& caption) {
        return test::Captioned<Widget>(Window(), caption);
    }
    QLineEdit& Field(const QString& label) {
        return dynamic_cast<QLineEdit&>(*Captioned<QLabel>(label).buddy());
    }
    void Click(const QString& caption) { Captioned<QPushButton>(caption).click(); }

    /// The entries at the side that can be chosen.
    std::vector<std::string> Pages() {
        const auto& list = *Window().findChild<QListWidget*>();
        std::vector<std::string> pages;
        for (int row = 0; row < list.count(); ++row) {
            const QListWidgetItem& entry = *list.item(row);
            if (!entry.isHidden() && entry.flags() != Qt::NoItemFlags)
                pages.push_back(entry.text().toStdString());
        }
        return pages;
    }
    std::string LastMessage() const { return world.prompts.messages.back().text; }

    test::TestApplication world;
};

TEST_F(OptionsWindowTest, OffersWhatTheRightsGrant) {
    EXPECT_FALSE(Captioned<QPushButton>("Access Logging").isEnabled()) << "for the Administrator alone";
    forms.Unload(kOptionsForm);

    world.application.session.CurrentUser = "Administrator";
    world.application.session.CurrentAccess = std::string(kRights, '0');
    EXPECT_THAT(Pages(), ElementsAre("Report Design", "Tools"));
    for (const char* button :
         {"Save and Exit", "Edit Custom Mappings", "Scheduled Reports", "Edit Call Costings", "Compute Costs",
          "Titlebar Colour", "Restore Defaults"}) {
        EXPECT_FALSE(Captioned<QPushButton>(button).isEnabled()) << button;
    }
    for (const char* button : {"Exit Without Saving", "Cover/Backing", "Access Logging", "Enable"}) {
        EXPECT_TRUE(Captioned<QPushButton>(button).isEnabled()) << button;
    }
    forms.Unload(kOptionsForm);

    world.application.session.CurrentAccess[static_cast<std::size_t>(AccessRight::Folders)] = '1';
    EXPECT_THAT(Pages(), ElementsAre("Report Design", "Folders", "Tools"));
}

TEST_F(OptionsWindowTest, GivesWayToTheWindowsItOpensAndStaysWhereThereIsNone) {
    world.Insert("tblsite", {{"ID", "001"}});
    EXPECT_EQ(Window().findChild<QLabel*>("SiteCount")->text(), "1");
    Click("Edit Call Costings");
    EXPECT_TRUE(Window().isVisible());
    Click("Configure Sites");
    EXPECT_FALSE(Window().isVisible());
    EXPECT_TRUE(forms.Find(kSitesForm)->isVisible());
    world.Insert("tblsite", {{"ID", "002"}});
    forms.Show(kOptionsForm);
    EXPECT_EQ(Window().findChild<QLabel*>("SiteCount")->text(), "2");
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_EQ(forms.Find(kOptionsForm), nullptr);
    EXPECT_TRUE(forms.Find(kMainForm)->isVisible());
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty()) << "nothing was changed, nothing is asked";
}

TEST_F(OptionsWindowTest, SavesWhatIsOnTheScreenAndLeaves) {
    world.settings.Write("ProxyIP", "old");
    world.settings.Write("SwitchBaud", "9600");
    EXPECT_FALSE(Field("Proxy Server:").isEnabled());
    EXPECT_FALSE(Field("Listen Port:").isEnabled());
    Field("Proxy Server:").setText("new");
    Captioned<QCheckBox>("Set Collector to Listen").click();
    EXPECT_TRUE(Field("Listen Port:").isEnabled());
    Field("SMTP Pass:").setText(" p\\w\"£ ");
    Captioned<QRadioButton>("Italian").click();
    Captioned<QRadioButton>("Right").click();
    world.prompts.paths = {"/srv/reports"};
    Click("Browse");
    Click("Disable");
    Click("Save and Exit");
    EXPECT_EQ(LastMessage(), "Settings saved!");
    EXPECT_EQ(forms.Find(kOptionsForm), nullptr);
    const std::vector<std::pair<const char*, const char*>> stored = {
        {"ProxyIP", "old"},     {"SwitchBaud", "9600"},
        {"ListenPort", "1752"}, {"SMTPPass", " p\\w\"£ "},
        {"Lang", "1040"},       {"ReportAlign", "R"},
        {"Currency", "£"},      {"ReportsLocation", "/srv/reports"}};
    for (const auto& [key, value] : stored) EXPECT_EQ(world.settings.Read(key), value) << key;
    EXPECT_EQ(world.crontab.Text(), "");
}

/// A person who cannot wait for the end of the save.
class Impatience : public EventQueue {
public:
    void Serve() override {
        if (const auto once = std::exchange(act, {})) once();
    }
    std::function<void()> act;
};

TEST_F(OptionsWindowTest, SavesOnceThoughItIsClickedAndClosedMeanwhile) {
    Impatience events;
    const Application& calm = world.application;
    Application hasty{calm.folder,   calm.tempFolder, calm.version, world.settings,
                      world.prompts, world.clock,     events,       std::move(world.application.session)};
    forms.Register(kOptionsForm, [&] { return std::make_unique<OptionsWindow>(forms, hasty); });
    events.act = [this] {
        Click("Save and Exit");
        Window().close();
        EXPECT_NE(forms.Find(kOptionsForm), nullptr);
    };
    Click("Save and Exit");
    EXPECT_EQ(world.prompts.messages.size(), 1U);
    EXPECT_EQ(forms.Find(kOptionsForm), nullptr);
}

TEST_F(OptionsWindowTest, AsksBeforeExtensionsOutOfTheCallsAreDiscardedAndSavesThem) {
    world.InsertCall({{"Extension", "305"}});
    world.prompts.answers = {Answer::Yes, Answer::No, Answer::Yes};
    Click("Get From Data");
    Window().close();
    EXPECT_EQ(LastMessage(),
              "Any changes that you have made will be discarded. Are you sure you want to exit?");
    EXPECT_TRUE(Window().isVisible());
    Click("Exit Without Saving");
    EXPECT_EQ(forms.Find(kOptionsForm), nullptr);
    world.prompts.answers = {Answer::Yes};
    Click("Get From Data");
    Click("Save and Exit");
    EXPECT_EQ(forms.Find(kOptionsForm), nullptr);
    EXPECT_THAT(LoadExtensions(world.application.session), ElementsAre(Extension{"305", ""}));
}

TEST_F(OptionsWindowTest, TellsOfLostCallsAndDebugLoggingByMouseAndByKey) {
    world.settings.Write("LostCalls", "1");
    auto& lost = Captioned<QCheckBox>("Include 'lost' calls in call records");
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty());
    lost.click();
    EXPECT_THAT(LastMessage(), testing::StartsWith("If you have already"));
    QTest::keyClick(&lost, Qt::Key_Space);
    EXPECT_THAT(LastMessage(), testing::StartsWith("IMPORTANT! - This"));
    auto& debug = *Window().findChild<QCheckBox*>("DebugLogging");
    debug.click();
    EXPECT_EQ(world.prompts.messages.back().title, "Debug Logging");
    debug.click();
    EXPECT_EQ(world.prompts.messages.size(), 3U) << "clearing it is not told of";
    EXPECT_FALSE(debug.isChecked());
}

TEST_F(OptionsWindowTest, TestsTheMailOnlyWithAServerAndAPort) {
    auto& test = Captioned<QPushButton>("Test Attach");
    Field("SMTP Port:").setText("25");
    EXPECT_FALSE(test.isEnabled());
    Field("SMTP Server:").setText("127.0.0.1");
    test.click();
    EXPECT_EQ(LastMessage(), "No default site has been configured, test email failed!");
    EXPECT_TRUE(test.isEnabled());
}

TEST_F(OptionsWindowTest, ComputesCostsOnYes) {
    world.InsertCall();
    const auto count = [&] {
        OpenDatabase(world.application.session);
        ado::Recordset costs;
        costs.Open("SELECT * FROM tblcostcount", OpenConnection(world.application.session));
        return costs.RecordCount();
    };
    Click("Compute Costs");
    EXPECT_EQ(count(), 0) << "No was the answer";
    world.prompts.answers = {Answer::Yes};
    Click("Compute Costs");
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(world.prompts.messages.size(), 2U);
    EXPECT_TRUE(Captioned<QPushButton>("Compute Costs").isEnabled());
}

TEST_F(OptionsWindowTest, RestoredColoursReachTheReportsByASaveOnly) {
    world.settings.Write("rptTHC", "001002003");
    const auto header = [this] {
        return Window().findChild<ui::ReportPreview*>()->Colour(ui::ReportPreview::Part::TableHeader).name();
    };
    EXPECT_EQ(header(), "#010203");
    Click("Restore Defaults");
    EXPECT_EQ(header(), "#b40300");
    Click("Exit Without Saving");
    EXPECT_EQ(header(), "#010203");
    world.prompts.colours = {{0, 0, 0}};
    Click("Table Header Colour");
    EXPECT_EQ(header(), "#010203");
    world.prompts.colours = {{9, 8, 7}};
    Click("Table Header Colour");
    Click("Save and Exit");
    EXPECT_EQ(world.settings.Read("rptTHC"), "009008007");
}

}  // namespace
}  // namespace tallix
