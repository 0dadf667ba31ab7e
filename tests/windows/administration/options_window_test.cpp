#include "windows/administration/options_window.h"

#include "support/form_test.h"
#include "toolkit/report_preview.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class OptionsWindowTest : public test::FormTest {
protected:
    OptionsWindowTest() {
        std::filesystem::create_directories(world.Folder() / "Collector");
        AddEmptyForms({kMainForm, kSitesForm, kAccessLoggingForm});
        UnderTest<OptionsWindow>(kOptionsForm, world.application);
    }

    void ChoosePage(const QString& name) {
        auto& list = *Window().findChild<QListWidget*>();
        list.setCurrentItem(list.findItems(name, Qt::MatchExactly).value(0));
    }

    void GetExtensionsFromTheCalls() {
        world.prompts.answers.push_front(Answer::Yes);
        ChoosePage("Extensions");
        Click("Get From Data");
    }
};

TEST_F(OptionsWindowTest, OffersWhatTheRightsGrant) {
    EXPECT_FALSE(Button("Access Logging").isEnabled()) << "for the Administrator only";
    forms.Unload(kOptionsForm);

    world.application.session.CurrentUser = "Administrator";
    world.application.session.CurrentAccess = {AccessRight::Folders};
    QStringList pages;
    for (const auto* entry : Window().findChild<QListWidget*>()->findItems("", Qt::MatchContains)) {
        if (!entry->isHidden() && entry->flags() != Qt::NoItemFlags) pages << entry->text();
    }
    EXPECT_EQ(pages, QStringList({"Report Design", "Folders", "Tools"}));
    for (const char* button :
         {"Save and Exit", "Edit Custom Mappings", "Scheduled Reports", "Edit Call Costings", "Compute Costs",
          "Titlebar Colour", "Restore Defaults"}) {
        EXPECT_FALSE(Button(button).isEnabled()) << button;
    }
    for (const char* button : {"Exit Without Saving", "Cover/Backing", "Access Logging", "Enable"}) {
        EXPECT_TRUE(Button(button).isEnabled()) << button;
    }
}

TEST_F(OptionsWindowTest, HidesForTheWindowsItOpensAndStaysForUnknownOnes) {
    world.Insert("tblsite", {{"ID", "001"}});
    EXPECT_EQ(Window().findChild<QLabel*>("SiteCount")->text(), "1");
    ChoosePage("Tools");
    Click("Edit Call Costings");
    EXPECT_TRUE(IsVisible(kOptionsForm));
    ChoosePage("Sites");
    Click("Configure Sites");
    EXPECT_TRUE(IsVisible(kSitesForm) && !IsVisible(kOptionsForm));
    world.Insert("tblsite", {{"ID", "002"}});
    forms.Show(kOptionsForm);
    EXPECT_EQ(Window().findChild<QLabel*>("SiteCount")->text(), "2");
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_TRUE(!IsLoaded() && IsVisible(kMainForm));
    EXPECT_TRUE(world.prompts.messages.empty()) << "nothing was changed, nothing is asked";
}

TEST_F(OptionsWindowTest, SavesWhatIsOnTheScreenAndLeaves) {
    world.settings.Write("ProxyIP", "old");
    EXPECT_FALSE(Labelled("Proxy Server:").isEnabled() || Labelled("Listen Port:").isEnabled());
    Type("Proxy Server:", "new");
    Captioned<QCheckBox>("Set Collector to Listen").click();
    EXPECT_TRUE(Labelled("Listen Port:").isEnabled());
    Type("SMTP Pass:", " p\\w\"£ ");
    Captioned<QRadioButton>("Italian").click();
    Captioned<QRadioButton>("Right").click();
    world.prompts.paths = {"/srv/reports"};
    ChoosePage("Folders");
    Click("Browse");
    ChoosePage("Tools");
    Click("Disable");
    Click("Save and Exit");
    EXPECT_EQ(LastMessage().text, "Settings saved!");
    EXPECT_FALSE(IsLoaded());
    const std::vector<std::pair<const char*, const char*>> stored = {
        {"ProxyIP", "old"}, {"ListenPort", "1752"}, {"SMTPPass", " p\\w\"£ "},
        {"Lang", "1040"},   {"ReportAlign", "R"},   {"ReportsLocation", "/srv/reports"}};
    for (const auto& [key, value] : stored) EXPECT_EQ(world.settings.Read(key), value) << key;
    EXPECT_EQ(world.crontab.Text(), "");
}

TEST_F(OptionsWindowTest, EverySettingHasAControl) {
    for (const char* master : {"UseProxy", "ListenFeed"}) world.settings.Write(master, "1");
    for (const OptionSetting& setting : AllSettings()) {
        if (setting.control.kind == SettingKind::Text) world.settings.Write(setting.key, "shown");
    }
    const OptionsValues before = LoadOptions(world.application);
    Click("Save and Exit");
    EXPECT_EQ(LoadOptions(world.application), before);
    for (const OptionSetting& setting : AllSettings()) {
        const bool mayBeEmpty = setting.control.kind == SettingKind::List || setting.key == "SMTPPass";
        EXPECT_TRUE(mayBeEmpty || !world.settings.Read(setting.key).empty()) << setting.key;
    }
}

TEST_F(OptionsWindowTest, AMouseReachesTheButtonsOfTheAccountPanel) {
    toolkit::ApplyStyle(*qApp);  // the program's, whose inputs are high
    ChoosePage("User Accounts");
    Click("Add");
    for (const char* caption : {"Save", "Cancel"}) {
        QAbstractButton& button = Button(caption);
        const QPoint centre = button.mapTo(button.window(), button.rect().center());
        ASSERT_EQ(button.window()->childAt(centre), &button) << caption;
        QTest::mouseClick(button.window()->windowHandle(), Qt::LeftButton, {}, centre);
    }
    EXPECT_EQ(LastMessage().title, "Username Incorrect");
    EXPECT_FALSE(Button("Cancel").isVisible());
}

TEST_F(OptionsWindowTest, SavesOnceThoughItIsClickedAndClosedMeanwhile) {
    world.events.onServe = [this] {
        world.events.onServe = {};
        Click("Save and Exit");
        Window().close();
        EXPECT_TRUE(IsLoaded());
    };
    Click("Save and Exit");
    EXPECT_EQ(world.prompts.messages.size(), 1U);
    EXPECT_FALSE(IsLoaded());
}

TEST_F(OptionsWindowTest, AsksBeforeDiscardingExtensionsFromTheCallsAndSavesThem) {
    world.InsertCall({{"Extension", "305"}});
    world.prompts.answers = {Answer::No, Answer::Yes};
    GetExtensionsFromTheCalls();
    Window().close();
    EXPECT_EQ(LastMessage().text,
              "Any changes that you have made will be discarded. Are you sure you want to exit?");
    EXPECT_TRUE(IsVisible(kOptionsForm));
    Click("Exit Without Saving");
    EXPECT_FALSE(IsLoaded());
    GetExtensionsFromTheCalls();
    Click("Save and Exit");
    EXPECT_THAT(LoadExtensions(world.application.session), ElementsAre(Extension{"305", ""}));
}

TEST_F(OptionsWindowTest, WarnsOfLostCallsAndDebugLoggingByMouseAndByKey) {
    world.settings.Write("LostCalls", "1");
    auto& lost = Captioned<QCheckBox>("Include 'lost' calls in call records");
    EXPECT_TRUE(world.prompts.messages.empty());
    lost.click();
    EXPECT_THAT(LastMessage().text, testing::StartsWith("If you have already"));
    QTest::keyClick(&lost, Qt::Key_Space);
    EXPECT_THAT(LastMessage().text, testing::StartsWith("IMPORTANT! - This"));
    auto& debug = *Window().findChild<QCheckBox*>("DebugLogging");
    debug.click();
    EXPECT_EQ(LastMessage().title, "Debug Logging");
    debug.click();
    EXPECT_EQ(world.prompts.messages.size(), 3U) << "clearing it shows nothing";
    EXPECT_FALSE(debug.isChecked());
}

TEST_F(OptionsWindowTest, TestsTheMailOnlyWithAServerAndAPort) {
    auto& test = Button("Test Attach");
    Type("SMTP Port:", "25");
    EXPECT_FALSE(test.isEnabled());
    Type("SMTP Server:", "127.0.0.1");
    test.click();
    EXPECT_EQ(LastMessage().text, "No default site has been configured, test email failed!");
    EXPECT_TRUE(test.isEnabled());
}

TEST_F(OptionsWindowTest, ComputesCostsOnYes) {
    world.InsertCall();
    ChoosePage("Tools");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        world.prompts.answers = {answer};
        Click("Compute Costs");
        EXPECT_EQ(world.Rows("SELECT COUNT(*) FROM tblcostcount"), answer == Answer::Yes ? "1|\n" : "0|\n");
    }
    EXPECT_EQ(world.prompts.messages.size(), 2U);
    EXPECT_TRUE(Button("Compute Costs").isEnabled());
}

TEST_F(OptionsWindowTest, OnlyASaveStoresTheRestoredColours) {
    world.settings.Write("rptTHC", "001002003");
    const auto header = [this] {
        using Preview = toolkit::ReportPreview;
        return Window().findChild<Preview*>()->Colour(Preview::Part::TableHeader).name();
    };
    ChoosePage("Report Design");
    Click("Restore Defaults");
    EXPECT_EQ(header(), "#b40300");
    Click("Exit Without Saving");
    EXPECT_EQ(header(), "#010203");
    ChoosePage("Report Design");
    world.prompts.colours = {{9, 8, 7}};
    Click("Table Header Colour");
    Click("Save and Exit");
    EXPECT_EQ(world.settings.Read("rptTHC"), "009008007");
}

}  // namespace
}  // namespace tallix
