// The page "Extension Groups" of the Options window: the groups, and beside them the members
// of the one that is selected.
#pragma once

#include <QLineEdit>

#include "session/application.h"
#include "toolkit/entry_panel.h"
#include "toolkit/list_view.h"
#include "windows/administration/list_page.h"
#include "windows/administration/options_page.h"

namespace tallix {

class ExtensionGroupsPage : public OptionsPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    ExtensionGroupsPage(Application& application, QWidget* parent);

    void Load() override;
    bool IsGranted(std::string_view access) const override;

private:
    QLayout* GroupColumn();
    QLayout* MemberColumn();
    void ShowMembers();
    void OpenGroup();
    void OpenMember();
    void DeleteGroup();
    void DeleteMember();
    void Save();
    void OpenPanel(bool forMember);
    bool Confirms(const std::string& title, const std::string& question);

    Application& application_;
    toolkit::ListView* groups_;
    toolkit::ListView* members_;
    toolkit::EntryPanel* panel_;
    QLineEdit* entry_;
    QLabel* entryLabel_;
    bool entersMember_ = false;  ///< whether the panel is for a member, not for a group
};

}  // namespace tallix
