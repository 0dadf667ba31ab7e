// The Options window ("Form2"): pages of settings and lists, chosen at the side, and the
// way to the other windows of the administration. Accounts, groups and the address book
// are stored at each edit; settings and extensions when the window is saved.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <vector>

#include "administration/options_save.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "windows/administration/extensions_page.h"
#include "windows/administration/options_page.h"
#include "windows/administration/settings_page.h"
#include "windows/administration/tools_page.h"

namespace tallix {

class OptionsWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    OptionsWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

    /// Closing the window leaves it without saving, as its button does.
    void closeEvent(QCloseEvent* event) override;

private:
    void MakePages();
    void AddGroup(const QString& title);
    template <typename Page>
    Page* AddPage(const QString& title);
    QLayout* PageColumn();
    QLayout* ButtonRow();
    void ShowPage(const QListWidgetItem* entry);
    void ApplyRights();
    void HideEmptyGroups();
    void ShowFirstPage();
    void Open(const QString& form);
    bool MayBeLeft();
    OptionsOnScreen OnScreen() const;
    void SaveAndExit();

    Application& application_;
    QListWidget* entries_;
    QLabel* title_;
    QStackedWidget* stack_;
    QPushButton* save_;
    QPushButton* exit_;
    std::vector<OptionsPage*> lists_;      ///< in the order of their loading
    std::vector<SettingsPage*> settings_;  ///< likewise, after the lists
    ExtensionsPage* extensions_ = nullptr;
    ToolsPage* tools_ = nullptr;
};

}  // namespace tallix
