// Email: how reports are mailed, and a test of it with the values on the screen.
#pragma once

#include "scheduling/test_mail.h"
#include "windows/administration/settings_page.h"

namespace tallix {

class EmailPage : public SettingsPage {
    Q_OBJECT
public:
    EmailPage(Application& application, QWidget* parent);

private:
    QPushButton* TestButton(const QString& caption, TestAttachment attachment);
    void EnableTests();
    void Test(TestAttachment attachment);
    TestMailInput Input() const;

    QList<QPushButton*> tests_;
};

}  // namespace tallix
