// The page "Extensions" of the Options window. Its list is edited on the screen and reaches
// the database only when the window is saved.
#pragma once

#include <QLineEdit>
#include <vector>

#include "administration/extensions.h"
#include "toolkit/entry_panel.h"
#include "windows/administration/list_page.h"

namespace tallix {

class ExtensionsPage : public ListPage {
    Q_OBJECT
public:
    /// `application` must outlive the page.
    ExtensionsPage(Application& application, QWidget* parent);

    void Load() override;

    /// Whether "Get From Data" was run since the list was loaded or saved. Edits of single
    /// lines do not count.
    bool Changed() const { return changed_; }
    void ClearChanged() { changed_ = false; }

    /// What the list shows, to be stored.
    const std::vector<Extension>& Extensions() const { return list_.All(); }

private:
    void AddButtons();
    void GetFromData();
    void OpenAdd();
    void OpenEdit();
    void Save();
    void Add(const Extension& extension);

    RecordList<Extension>& list_;
    toolkit::EntryPanel* panel_;
    QLineEdit* number_;
    QLineEdit* name_;
    Entry entry_ = Entry::New;
    bool changed_ = false;
};

}  // namespace tallix
