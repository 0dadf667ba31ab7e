// The main menu ("Form1"): the entries that the person's rights allow, who is connected to
// what, the update notice, and the buttons to leave. It stays loaded, hidden, while a window
// opened from it is shown.
#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <vector>

#include "startup/update_check.h"
#include "toolkit/entry_button.h"
#include "toolkit/form.h"
#include "windows/session/main_menu.h"

namespace tallix {

class MainWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    MainWindow(toolkit::Forms& forms, Application& application);

protected:
    /// What differs between the two forms of the main menu.
    struct Kind {
        bool exportHasHoverEffect;
        NoUpdatesSetting noUpdates;
    };
    MainWindow(toolkit::Forms& forms, Application& application, const Kind& kind);

    void OnLoad() override;
    void OnUnload() override;

    /// Closing the window leaves the program as its button does.
    void closeEvent(QCloseEvent* event) override;

    /// The button "Exit Reports".
    virtual void ExitReports();

    /// Puts a panel beside the entries: below them it would not fit on a small screen.
    void AddPanel(QWidget& panel);

    Application& Program() const { return application_; }

private:
    void MakeEntries();
    void MakeNotice();
    void ArrangeRows();
    QLayout* TitleRow();
    QLayout* FooterRow();
    void ArrangeEntries();
    void Open(const QString& form);
    void CheckForUpdates();
    void ShowNotice(const UpdateNotice& notice);
    void OpenMakerSite();
    void LogOut();

    Application& application_;
    Kind kind_;
    UpdateNotice notice_;
    QTimer updateTimer_;
    QVBoxLayout* rows_;
    QHBoxLayout* middle_;  ///< the entries and the panel beside them
    QGridLayout* grid_;
    std::vector<toolkit::EntryButton*> entries_;
    QLabel* connected_;
    QPushButton* noticeLabel_ = nullptr;
};

}  // namespace tallix
