// The page "Extension Groups" of the Options window: the groups, and beside them the members
// of the one that is selected.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "toolkit/entry_panel.h"
#include "windows/administration/list_page.h"

namespace tallix {

class ExtensionGroupsPage : public ListPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    ExtensionGroupsPage(Application& application, QWidget* parent);

    void Load() override;

private:
    /// What the panel adds.
    enum class Added { Group, Member };

    void AddButtons();
    std::int64_t SelectedLine() const;
    void ShowMembers();
    void Open(Added added);
    void DeleteGroup();
    void DeleteMember();
    void Save();

    RecordList<std::string>& groups_;
    RecordList<std::string>& members_;
    toolkit::EntryPanel* panel_;
    QLineEdit* entry_;
    QLabel* entryLabel_;
    QPushButton* addMember_ = nullptr;
    Added added_ = Added::Group;
};

}  // namespace tallix
