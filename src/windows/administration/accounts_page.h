// The page "User Accounts" of the Options window.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "administration/accounts.h"
#include "toolkit/entry_panel.h"
#include "toolkit/permission_list.h"
#include "windows/administration/list_page.h"

namespace tallix {

class AccountsPage : public ListPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    AccountsPage(Application& application, QWidget* parent);

    void Load() override;
    void ApplyRights(const AccessRights& access) override;

private:
    void AddButtons();
    void MakeAccountPanel();
    void MakeAccessPanel();

    void OpenAdd();
    void OpenEdit();
    void OpenAccount(const char* title, const Account& account);
    Account Typed() const;
    void SaveAccount();
    bool Add(const Account& account);  // false when the name is taken
    void Edit(const Account& account);
    void Delete();
    void OpenAccess();
    void SaveAccess();

    RecordList<Account>& list_;

    toolkit::EntryPanel* accountPanel_ = nullptr;
    QLineEdit* userName_;
    QLineEdit* password_;
    QLineEdit* email_;
    QLabel* groupLabel_ = nullptr;
    QComboBox* group_;
    toolkit::PermissionList* permissions_;
    Entry entry_ = Entry::New;

    toolkit::EntryPanel* accessPanel_ = nullptr;
    QLabel* accessUser_;
    toolkit::PermissionList* accessRights_;
};

}  // namespace tallix
