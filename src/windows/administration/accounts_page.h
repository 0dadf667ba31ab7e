// The page "User Accounts" of the Options window.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "administration/accounts.h"
#include "toolkit/entry_panel.h"
#include "toolkit/permission_list.h"
#include "windows/administration/list_page.h"
#include "windows/administration/options_page.h"

namespace tallix {

class AccountsPage : public OptionsPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    AccountsPage(Application& application, QWidget* parent);

    void Load() override;
    void ApplyRights(std::string_view access) override;
    bool IsGranted(std::string_view access) const override;

private:
    void MakeAccountPanel();
    void MakeAccessPanel();
    void EnableButtons();
    std::string SelectedName() const;

    void OpenAdd();
    void OpenEdit();
    void OpenAccount(const char* title, const Account& account);
    Account Typed() const;
    void SaveAccount();
    bool Add(const Account& account);  // false where the name is taken
    void Edit(const Account& account);
    void Delete();
    void OpenAccess();
    void SaveAccess();

    Application& application_;
    toolkit::ListView* list_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* delete_;
    QPushButton* access_;

    toolkit::EntryPanel* accountPanel_ = nullptr;
    QLineEdit* userName_;
    QLineEdit* password_;
    QLineEdit* email_;
    QLabel* groupLabel_ = nullptr;
    QComboBox* group_;
    toolkit::PermissionList* permissions_;
    bool edits_ = false;  ///< whether the panel is for an account that is there

    toolkit::EntryPanel* accessPanel_ = nullptr;
    QLabel* accessUser_;
    toolkit::PermissionList* accessRights_;
};

}  // namespace tallix
