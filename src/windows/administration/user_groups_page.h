// The page "User Groups" of the Options window.
#pragma once

#include <QLineEdit>

#include "session/application.h"
#include "toolkit/entry_panel.h"
#include "toolkit/permission_list.h"
#include "windows/administration/list_page.h"
#include "windows/administration/options_page.h"

namespace tallix {

class UserGroupsPage : public OptionsPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    UserGroupsPage(Application& application, QWidget* parent);

    void Load() override;
    bool IsGranted(std::string_view access) const override;

private:
    void MakePanel();
    void EnableButtons();
    void OpenAdd();
    void OpenEdit();
    void Delete();
    void Save();
    bool Add(const std::string& name);
    bool Edit(const std::string& name);
    std::string SelectedName() const;

    Application& application_;
    toolkit::ListView* list_;
    QPushButton* edit_;
    QPushButton* delete_;
    toolkit::EntryPanel* panel_;
    QLineEdit* name_;
    toolkit::PermissionList* rights_;
    bool edits_ = false;  ///< whether the panel is for a group that is there
};

}  // namespace tallix
