#include "windows/administration/email_page.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

#include "toolkit/style.h"
#include "toolkit/wait_panel.h"

namespace tallix {
EmailPage::EmailPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QFormLayout& panel = AddPanel("Email Settings", OptionPanel::Email);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(toolkit::kSpacing);
    buttons->addWidget(TestButton("Test Email", TestAttachment::None));
    buttons->addWidget(TestButton("Test Attach", TestAttachment::Logo));
    buttons->addWidget(new QPushButton("Outlook"));
    buttons->addStretch();
    panel.addRow(buttons);
    Rows().addStretch();
    for (const char* key : {"SMTPServer", "SMTPPort"}) {
        connect(&Field(key), &QLineEdit::textChanged, this, &EmailPage::EnableTests);
    }
    EnableTests();
}

QPushButton* EmailPage::TestButton(const QString& caption, TestAttachment attachment) {
    auto* button = new QPushButton(caption);
    connect(button, &QPushButton::clicked, this, [this, attachment] { Test(attachment); });
    tests_.append(button);
    return button;
}

void EmailPage::EnableTests() {
    const bool reachable = !Field("SMTPServer").text().isEmpty() && !Field("SMTPPort").text().isEmpty();
    for (QPushButton* button : tests_) button->setEnabled(reachable);
}

TestMailInput EmailPage::Input() const {
    return {.from = Field("SMTPEmail").text().toStdString(),
            .server = Field("SMTPServer").text().toStdString(),
            .port = Field("SMTPPort").text().toStdString(),
            .authenticate = Box("SMTPAuth").isChecked(),
            .user = Field("SMTPUser").text().toStdString(),
            .password = Field("SMTPPass").text().toStdString(),
            .ssl = Box("SMTPSSL").isChecked()};
}

void EmailPage::Test(TestAttachment attachment) {
    const TestMailInput input = Input();
    Message outcome;
    toolkit::RunWithPanel(*this, Program().events, "Sending Test Email", "Please Wait...",
                          [&] { outcome = SendTestMail(Program(), input, attachment); });
    Program().prompts.Show(outcome);
}

}  // namespace tallix
