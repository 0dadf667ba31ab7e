#include "windows/backup/archive_window.h"

#include <gmock/gmock.h>

#include <QThread>

#include "support/form_test.h"

namespace tallix {
namespace {

class ArchiveWindowTest : public test::FormTest {
protected:
    // With a service manager of the test's own, which notes what it is asked.
    ArchiveWindowTest() {
        const auto manager = world.Folder() / "bin/systemctl";
        std::filesystem::create_directory(manager.parent_path());
        std::ofstream(manager) << "#!/bin/sh\necho $2 $3 >>" << asked_.string();
        std::filesystem::permissions(manager, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(manager.parent_path()) + ":" + path_);
        AddEmptyForms({kMainForm});
        UnderTest<ArchiveWindow>(kArchiveForm, world.application);
    }
    ~ArchiveWindowTest() override { qputenv("PATH", path_); }

    /// Returns whether the progress is shown when the action is over.
    bool Begin(Answer answer = Answer::Yes) {
        world.prompts.answers = {answer};
        Click("BEGIN ARCHIVE");
        return Captioned<QLabel>("Please Wait").isVisible();
    }
    void ExpectAsked(const std::string& asked) const {
        for (int i = 0; i < 300 && test::ReadBytes(asked_) != asked; ++i) QThread::msleep(10);
        EXPECT_EQ(test::ReadBytes(asked_), asked);
    }

    QLineEdit& Year() { return Tipped("Enter year to archive"); }
    QLineEdit& Location() { return Tipped("Location of archive file"); }

    const QByteArray path_ = qgetenv("PATH");
    const std::filesystem::path asked_ = world.Folder() / "asked";
};

TEST_F(ArchiveWindowTest, StaysWithItsProgressShownUntilTheRequestIsComplete) {
    const auto* months = Window().findChild<QComboBox*>();
    EXPECT_EQ(months->itemText(0) + months->itemText(months->count() - 1), "01/200212/2020");
    world.InsertCall({{"Date", "05/03/2020"}});
    EXPECT_FALSE(Begin(Answer::No));
    world.prompts.paths = {"/old.saf"};
    Click("Browse");
    EXPECT_EQ(Location().text(), "/old.saf.SAF");
    Captioned<QLineEdit>("old.saf").clear();
    EXPECT_TRUE(Begin()) << "no name";
    ExpectAsked("stop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("To Database").click();
    EXPECT_FALSE(Location().isEnabled());
    EXPECT_TRUE(Begin()) << "no month";
    ExpectAsked("stop TALLIX_COLLECTOR\nstop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("Entire Year").click();
    EXPECT_FALSE(months->isEnabled());
    Year().setText("2020");
    EXPECT_FALSE(Begin());
    EXPECT_FALSE(Captioned<QRadioButton>("Entire Year").isChecked());
    EXPECT_FALSE(Year().isEnabled());
    EXPECT_TRUE(Captioned<QPushButton>("Browse").isEnabled());
    EXPECT_TRUE(Begin()) << "no period";
    Click("Close");
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kMainForm));
}

}  // namespace
}  // namespace tallix
