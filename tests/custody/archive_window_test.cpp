#include "custody/archive_window.h"

#include <gmock/gmock.h>

#include <QThread>

#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

class ArchiveWindowTest : public test::WindowTest {
protected:
    // With a service manager of the test's own, which notes what it is asked.
    ArchiveWindowTest() {
        const auto manager = test_.Folder() / "bin/systemctl";
        std::filesystem::create_directory(manager.parent_path());
        std::ofstream(manager) << "#!/bin/sh\necho $2 $3 >>" << asked_.string();
        std::filesystem::permissions(manager, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(manager.parent_path()) + ":" + path_);
        forms.Register(kArchiveForm,
                       [this] { return std::make_unique<ArchiveWindow>(forms, test_.application); });
        forms.Register(kMainForm, [this] { return std::make_unique<ui::Form>(forms, "Main"); });
        forms.Show(kArchiveForm);
        window_ = forms.Find(kArchiveForm);
        for (auto* field : window_->findChildren<QLineEdit*>()) {
            if (field->toolTip() == "Enter year to archive") year_ = field;
            if (field->toolTip() == "Location of archive file") location_ = field;
        }
    }
    ~ArchiveWindowTest() override { qputenv("PATH", path_); }

    template <typename Widget>
    Widget& Captioned(const char* caption) const {
        return test::Captioned<Widget>(*window_, caption);
    }

    /// Returns whether the progress is shown when the action is over.
    bool Begin(Answer answer = Answer::Yes) {
        test_.prompts.answers = {answer};
        Captioned<QPushButton>("BEGIN ARCHIVE").click();
        return Captioned<QLabel>("Please Wait").isVisible();
    }
    void ExpectAsked(const std::string& asked) const {
        for (int i = 0; i < 300 && test::ReadBytes(asked_) != asked; ++i) QThread::msleep(10);
        EXPECT_EQ(test::ReadBytes(asked_), asked);
    }

    const QByteArray path_ = qgetenv("PATH");
    test::TestApplication test_;
    const std::filesystem::path asked_ = test_.Folder() / "asked";
    QWidget* window_ = nullptr;
    QLineEdit* year_ = nullptr;
    QLineEdit* location_ = nullptr;
};

TEST_F(ArchiveWindowTest, StaysWithItsProgressShownUntilTheRequestIsComplete) {
    const auto* months = window_->findChild<QComboBox*>();
    EXPECT_EQ(months->itemText(0) + months->itemText(months->count() - 1), "01/200212/2020");
    test_.InsertCall({{"Date", "05/03/2020"}});
    EXPECT_FALSE(Begin(Answer::No));
    test_.prompts.paths = {"/old.saf"};
    Captioned<QPushButton>("Browse").click();
    EXPECT_EQ(location_->text(), "/old.saf.SAF");
    Captioned<QLineEdit>("old.saf").clear();
    EXPECT_TRUE(Begin()) << "no name";
    ExpectAsked("stop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("To Database").click();
    EXPECT_FALSE(location_->isEnabled());
    EXPECT_TRUE(Begin()) << "no month";
    ExpectAsked("stop TALLIX_COLLECTOR\nstop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("Entire Year").click();
    EXPECT_FALSE(months->isEnabled());
    year_->setText("2020");
    EXPECT_FALSE(Begin());
    EXPECT_FALSE(Captioned<QRadioButton>("Entire Year").isChecked());
    EXPECT_FALSE(year_->isEnabled());
    EXPECT_TRUE(Captioned<QPushButton>("Browse").isEnabled());
    EXPECT_TRUE(Begin()) << "no period";
    Captioned<QPushButton>("Close").click();
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kMainForm));
}

}  // namespace
}  // namespace tallix
