#include "windows/scheduling/scheduled_reports_window.h"

#include "reporting/catalogue.h"
#include "support/form_test.h"
#include "toolkit/qt_events.h"

namespace tallix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ScheduledReportsWindowTest : public test::FormTest {
protected:
    ScheduledReportsWindowTest() {
        UnderTest<ScheduledReportsWindow>(kSchedulesForm, world.application);
        AddEmptyForms({kOptionsForm});
        std::filesystem::create_directories(Scheduled());
        world.WriteReport("Calls", {}, {{"Date", "True"}, {"Account", "true"}});
        world.WriteReport("Times", {}, {{"Time", "True"}, {"Site", "True"}});
        std::filesystem::copy(PresetReportFile(world.application.folder, "Calls"),
                              world.application.folder / "Reports/Standard/CST_Mine.SRT");
    }

    QListView& Tasks() { return Labelled<QListView>("Current Tasks"); }
    QStringList Listed() { return dynamic_cast<QStringListModel&>(*Tasks().model()).stringList(); }
    std::filesystem::path Scheduled() const { return world.application.folder / "Reports" / "Scheduled"; }

    /// Fills in what "Create New" asks for and saves it.
    void Create(const QString& name, const QString& frequency) {
        Click("Create New");
        Type("Task Name:", name);
        Labelled<QComboBox>("Select Preset Report:").setCurrentText("Times");
        Click(frequency);
        Type("Location:", "/out\\");
        Click("Save Schedule");
    }
};

TEST_F(ScheduledReportsWindowTest, OffersTheParametersThatAReportCanUse) {
    auto& reports = Labelled<QComboBox>("Select Preset Report:");
    EXPECT_EQ(reports.count(), 2) << "a file of another prefix is not a preset report";
    Click("Create New");
    reports.setCurrentText("Calls");
    const auto enabled = [this] {
        QString labels;
        for (const char* label : {"Account:", "Date:", "Duration:", "Extension:", "Site:", "Time:"}) {
            if (Labelled<QWidget>(label).isEnabled()) labels += label;
        }
        return labels;
    };
    EXPECT_EQ(enabled(), "Date:") << "True allows a parameter, true does not";
    Type("Date:", "01/02/2021");
    reports.setCurrentText("Times");
    EXPECT_EQ(enabled(), "Site:Time:");
    EXPECT_EQ(Labelled("Date:").text(), "");
}

TEST_F(ScheduledReportsWindowTest, RefusesWhatIsMissingInItsOrder) {
    Click("Create New");
    Click("Save Schedule");
    EXPECT_EQ(LastMessage().text, "You have not entered a name for this task. Schedule Not Saved!");
    Type("Task Name:", "Week");
    Click("Save Schedule");
    EXPECT_THAT(LastMessage().text, HasSubstr("a frequency"));
    Click("Weekly");
    Click("Save Schedule");
    EXPECT_THAT(LastMessage().text, HasSubstr("a report to be run"));
    EXPECT_TRUE(std::filesystem::is_empty(Scheduled()));
}

TEST_F(ScheduledReportsWindowTest, SavesEditsAndDeletesAScheduleWithItsTask) {
    Create("My Week", "Weekly");
    EXPECT_THAT(
        test::ReadLines(Scheduled() / "My Week.SSR"),
        testing::ElementsAre(";Tallix - Scheduled Report", ";", "[General]", "Report=Standard\\STD_Times.SRT",
                             "User=Ann", "Output=File", "OutputLocation=/out\\",
                             "Account=", "Duration=", "Date=", "Extension=", "Site=", "TimeS=", "TimeF="));
    const std::string home = " '" + world.application.folder.string();
    const std::string command = home + "/Tallix_Reports'" + home + "/Reports/Scheduled/My Week.SSR'\n";
    EXPECT_EQ(world.crontab.Text(), "# Tallix_My Week\n1 0 * * 2" + command) << "the ninth was a Tuesday";
    EXPECT_EQ(Logged().back(), "Saved Scheduled Reports");

    Tasks().setCurrentIndex(Tasks().model()->index(0, 0));
    Click("Edit Selected");
    EXPECT_FALSE(Labelled("Task Name:").isEnabled());
    EXPECT_EQ(Labelled("Location:").text(), "/out\\");
    Labelled<QComboBox>("Select Preset Report:").setCurrentText("Times");
    Click("Email");
    Click("Hourly");
    Type("Site:", "ALL");
    Labelled<QComboBox>("Time:").setCurrentText("09:00");
    Click("Save Schedule");
    EXPECT_EQ(world.crontab.Text(), "# Tallix_My Week\n1 * * * *" + command);
    EXPECT_EQ(Listed(), QStringList({"My Week", "My Week"})) << "until the list is loaded again";
    const ScheduledReport stored = ReadSchedule(world.application, "My Week");
    EXPECT_EQ(stored.output + stored.site + stored.timeStart, "EmailALL09:00");

    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_TRUE(std::filesystem::exists(Scheduled() / "My Week.SSR"));
        world.prompts.answers.push_back(answer);
        Tasks().setCurrentIndex(Tasks().model()->index(0, 0));
        Click("Delete Selected");
    }
    EXPECT_EQ(LastMessage().text, "Are you sure you wish to delete the scheduled report My Week?");
    EXPECT_EQ(world.crontab.Text(), "");
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(Scheduled()));
}

TEST_F(ScheduledReportsWindowTest, StaysOpenWhileATaskIsCreated) {
    toolkit::QtEvents events;
    world.events.queue = &events;
    Later([this] {
        Later([this] { Window().close(); });
        Create("Week", "Weekly");
        EXPECT_EQ(Listed(), QStringList("Week"));
        QCoreApplication::quit();
    });
    RunToTheEnd();
}

TEST_F(ScheduledReportsWindowTest, ANameThatIsNotAFileNameIsNotSaved) {
    for (const char* name : {"../Standard/STD_Calls", "..\\..\\x", "/tmp/x"}) Create(name, "Daily");
    EXPECT_TRUE(std::filesystem::is_empty(Scheduled()));
    EXPECT_EQ(world.crontab.Text(), "");
    std::filesystem::remove(Scheduled());
    Create("No Folder", "Daily");
    EXPECT_THAT(world.prompts.messages, IsEmpty());
    EXPECT_THAT(world.crontab.Text(), testing::EndsWith("/Reports/Scheduled/No Folder.SSR'\n"));
}

TEST_F(ScheduledReportsWindowTest, PutsTheChosenFolderInAndReturnsToTheOptions) {
    Click("Create New");
    world.prompts.paths.push_back("/srv/out");
    Click("...");
    Click("...");
    EXPECT_EQ(Labelled("Location:").text(), "/srv/out\\");
    Click("Exit Schedule Screen");
    EXPECT_TRUE(!IsLoaded() && IsVisible(kOptionsForm));
}

}  // namespace
}  // namespace tallix
