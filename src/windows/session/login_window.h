// The login ("Form6"): asks for a user name and a password, and opens the main menu of
// the session. Three refusals close it.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "session/login.h"
#include "toolkit/form.h"

namespace tallix {

class LoginWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    LoginWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnUnload() override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeInputs();
    void MakeMessages();
    void MakeButtons();
    void ArrangeRows();
    QLayout* TitleRow();
    QLayout* InputRows();
    QLayout* ButtonRow();

    void LogIn();
    void SetChecking(bool checking);
    void ShowProgress();
    void OpenSession();
    void Refuse();
    void AskAgain(const QString& message);
    void Exit();

    Application& application_;
    Login login_;
    bool checking_ = false;
    int progress_ = 0;
    QTimer progressTimer_;
    QLineEdit* userName_;
    QLineEdit* password_;
    QLabel* message_;
    QFrame* progressFrame_;
    QProgressBar* progressBar_;
    QPushButton* loginButton_;
    QPushButton* exitButton_;
};

}  // namespace tallix
