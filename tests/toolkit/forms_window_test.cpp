#include "toolkit/forms.h"

#include <QMessageBox>
#include <QPointer>

#include "support/window_test.h"
#include "toolkit/form.h"

namespace tallix::toolkit {
namespace {

using testing::ElementsAre;

class FormsTest : public test::WindowTest {
protected:
    FormsTest() {
        for (const char* name : {"Form1", "Form2"}) {
            forms.Register(name, [this, name] { return std::make_unique<Form>(forms, name); });
        }
    }
};

TEST_F(FormsTest, AFormStaysTheSameWhileLoadedAndUnknownOnesDoNoHarm) {
    EXPECT_EQ(forms.Load("Form99"), nullptr);
    forms.Show("Form99");
    forms.Hide("Form1");
    forms.Unload("Form1");
    Form* form = forms.Load("Form1");
    EXPECT_FALSE(form->isVisible());
    forms.Show("Form1");
    EXPECT_TRUE(form->isVisible());
    forms.Hide("Form1");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(forms.Load("Form1"), form);
}

TEST_F(FormsTest, UnloadingInsideAnActionKeepsTheFormUntilTheActionIsOver) {
    const QPointer<Form> first = forms.Load("Form1");
    forms.Load("Form2");
    Later([&] {
        first->Unload();
        EXPECT_TRUE(!first.isNull() && forms.Find("Form1") == nullptr);
        EXPECT_NE(forms.Load("Form1"), first);
    });
    Later([&] { QCoreApplication::exit(0); });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_TRUE(first.isNull());
    EXPECT_THAT(forms.Loaded(), ElementsAre("Form2", "Form1"));
}

TEST_F(FormsTest, TheProcessEndsWhenAnActionLeavesNoFormLoaded) {
    forms.Load("Form1");
    Later([&] {
        forms.Unload("Form1");
        forms.Show("Form1");
        forms.Load("Form2");
    });
    Later([&] { forms.Find("Form1")->close(); });
    Later([&] { EXPECT_THAT(forms.Loaded(), ElementsAre("Form2")); });
    Later([&] { forms.Unload("Form2"); });

    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_TRUE(forms.Loaded().empty());
}

TEST_F(FormsTest, AMessageAfterTheLastFormWaitsForItsAnswer) {
    forms.Load("Form1");
    bool answered = false;
    Later([&] {
        forms.Unload("Form1");
        QMessageBox box;
        box.setStandardButtons(QMessageBox::Ok);
        QTimer::singleShot(50, &box, [&] {
            answered = true;
            box.accept();
        });
        box.exec();
    });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_TRUE(answered);
}

TEST_F(FormsTest, AFailureThatNobodyCaughtEndsTheRunOnce) {
    forms.Load("Form1");
    Later([] { throw std::runtime_error("the server is gone"); });
    Later([] { throw std::runtime_error("so is the second"); });

    EXPECT_EQ(RunToTheEnd(), 1);
    EXPECT_THAT(failures, ElementsAre("the server is gone"));
}

}  // namespace
}  // namespace tallix::toolkit
