// The page "User Groups" of the Options window.
#pragma once

#include <QLineEdit>

#include "toolkit/entry_panel.h"
#include "toolkit/permission_list.h"
#include "windows/administration/list_page.h"

namespace tallix {

class UserGroupsPage : public ListPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    UserGroupsPage(Application& application, QWidget* parent);

    void Load() override;

private:
    void AddButtons();
    void MakePanel();
    void OpenAdd();
    void OpenEdit();
    void Delete();
    void Save();
    bool Add(const std::string& name);
    bool Edit(const std::string& name);

    RecordList<std::string>& list_;
    toolkit::EntryPanel* panel_;
    QLineEdit* name_;
    toolkit::PermissionList* rights_;
    Entry entry_ = Entry::New;
};

}  // namespace tallix
